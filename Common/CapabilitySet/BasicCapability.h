// What hardware a device has and which functions it offers, and the query for it.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/CapabilityElements.h"
#include "CapabilitySet/FieldTags.h"

struct _xmlNode;

namespace CapabilitySet
{

// Members bear the names of their elements. A number that the device does not tell is 0, a flag
// false, a text empty.

/// Numbers of a device's RS-485 ports.
struct CAPABILITYSET_API RS485OfBC
{
    bool valid = false;  ///< at least one element was read
    MinMaxElement localRs485No;
    MinMaxElement expandRS485No;
    MinMaxElement fullDuplexRS485No;
    MinMaxElement semiDuplexRS485No;
    MinMaxElement _485SlotNo;

    RS485OfBC() = default;
    explicit RS485OfBC(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the elements from the record's first child on; null reads nothing.
    void Parse(_xmlNode* firstChild);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("localRs485No", r.localRs485No, as::attributes);
        field("expandRS485No", r.expandRS485No, as::attributes);
        field("fullDuplexRS485No", r.fullDuplexRS485No, as::attributes);
        field("semiDuplexRS485No", r.semiDuplexRS485No, as::attributes);
        // No well-formed document can hold this name; the member stands for completeness.
        field("485SlotNo", r._485SlotNo, as::attributes);
    }
};

/// Numbers of an alarm host's zones.
struct CAPABILITYSET_API ZoneNum
{
    bool valid = false;  ///< at least one element was read
    MinMaxElement localZoneNo;
    MinMaxElement extendZoneNo;

    ZoneNum() = default;
    explicit ZoneNum(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the elements from the record's first child on; null reads nothing.
    void Parse(_xmlNode* firstChild);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("localZoneNo", r.localZoneNo, as::attributes);
        field("extendZoneNo", r.extendZoneNo, as::attributes);
    }
};

/// Numbers of an alarm host's trigger outputs.
struct CAPABILITYSET_API TriggerNum
{
    bool valid = false;  ///< at least one element was read
    MinMaxElement localTriggerNo;
    MinMaxElement extendTriggerNo;

    TriggerNum() = default;
    explicit TriggerNum(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the elements from the record's first child on; null reads nothing.
    void Parse(_xmlNode* firstChild);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("localTriggerNo", r.localTriggerNo, as::attributes);
        field("extendTriggerNo", r.extendTriggerNo, as::attributes);
    }
};

/// Analogue sensors of an alarm host.
struct CAPABILITYSET_API Sensor
{
    bool valid = false;  ///< at least one element was read
    int totalSensorNum = 0;
    MinMaxElement localSensorNo;
    MinMaxElement expandSensorNo;

    Sensor() = default;
    explicit Sensor(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the elements from the record's first child on; null reads nothing.
    void Parse(_xmlNode* firstChild);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("totalSensorNum", r.totalSensorNum);
        field("localSensorNo", r.localSensorNo, as::attributes);
        field("expandSensorNo", r.expandSensorNo, as::attributes);
    }
};

/// Ports, disks, channels and outputs.
struct CAPABILITYSET_API HardwareCapability
{
    bool valid = false;       ///< at least one element was read
    int HardwareVersion = 0;  ///< hardware revision
    int AlarmInPortNum = 0;
    int AlarmOutPortNum = 0;
    int RS232Num = 0;
    int RS485Num = 0;
    int NetworkPortNum = 0;
    int USBNum = 0;
    int FlashSize = 0;            ///< flash memory, MB
    int RamSize = 0;              ///< main memory, MB
    unsigned int USBVersion = 0;  ///< USB standard of the ports
    int SDNum = 0;                ///< SD card slots
    int HardDiskNum = 0;          ///< disks the device can hold
    int SATANum = 0;
    int eSATANum = 0;
    int miniSASNum = 0;
    int VideoInNum = 0;
    int AudioInNum = 0;
    int VideoOutNum = 0;
    int AudioOutNum = 0;
    int AudioTalkNum = 0;  ///< two-way audio channels
    bool SDSupport = false;
    bool WiFiSupport = false;
    bool POESupport = false;  ///< powers cameras over the network cable
    bool IRSupport = false;   ///< infrared remote control
    bool VideoOutSupport = false;
    bool ResetSupport = false;
    int AnalogChannelNum = 0;
    int IPChannelNum = 0;
    bool MultiNetworkCard = false;
    int NetworkCardNumber = 0;
    bool BondingSupport = false;  ///< network cards can be bonded
    int VGANumber = 0;
    int HDMINumber = 0;
    int CVBSNumber = 0;
    int AuxoutNumber = 0;       ///< auxiliary outputs
    unsigned int RAIDType = 0;  ///< RAID kinds supported, one bit each
    RS485OfBC RS485;
    ZoneNum zoneNum;              ///< zones of an alarm host
    MinMaxElement sirenNo;        ///< numbers of the sirens
    MinMaxElement electroLockNo;  ///< numbers of the electric locks
    MinMaxElement mobileGateNo;   ///< numbers of the movable gates
    TriggerNum triggerNum;
    Sensor sensor;

    HardwareCapability() = default;
    explicit HardwareCapability(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the elements from the record's first child on; null reads nothing.
    void Parse(_xmlNode* firstChild);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("HardwareVersion", r.HardwareVersion);
        field("AlarmInPortNum", r.AlarmInPortNum);
        field("AlarmOutPortNum", r.AlarmOutPortNum);
        field("RS232Num", r.RS232Num);
        field("RS485Num", r.RS485Num);
        field("NetworkPortNum", r.NetworkPortNum);
        field("USBNum", r.USBNum);
        field("FlashSize", r.FlashSize);
        field("RamSize", r.RamSize);
        field("USBVersion", r.USBVersion);
        field("SDNum", r.SDNum);
        field("HardDiskNum", r.HardDiskNum);
        field("SATANum", r.SATANum);
        field("eSATANum", r.eSATANum);
        field("miniSASNum", r.miniSASNum);
        field("VideoInNum", r.VideoInNum);
        field("AudioInNum", r.AudioInNum);
        field("VideoOutNum", r.VideoOutNum);
        field("AudioOutNum", r.AudioOutNum);
        field("AudioTalkNum", r.AudioTalkNum);
        field("SDSupport", r.SDSupport);
        field("WiFiSupport", r.WiFiSupport);
        field("POESupport", r.POESupport);
        field("IRSupport", r.IRSupport);
        field("VideoOutSupport", r.VideoOutSupport);
        field("ResetSupport", r.ResetSupport);
        field("AnalogChannelNum", r.AnalogChannelNum);
        field("IPChannelNum", r.IPChannelNum);
        field("MultiNetworkCard", r.MultiNetworkCard);
        field("NetworkCardNumber", r.NetworkCardNumber);
        field("BondingSupport", r.BondingSupport);
        field("VGANumber", r.VGANumber);
        field("HDMINumber", r.HDMINumber);
        field("CVBSNumber", r.CVBSNumber);
        field("AuxoutNumber", r.AuxoutNumber);
        field("RAIDType", r.RAIDType);
        field("RS485", r.RS485);
        field("ZoneNum", r.zoneNum);
        field("sirenNo", r.sirenNo, as::attributes);
        field("electroLockNo", r.electroLockNo, as::attributes);
        field("mobileGateNo", r.mobileGateNo, as::attributes);
        field("TriggerNum", r.triggerNum);
        field("Sensor", r.sensor);
    }
};

/// The local video output.
struct CAPABILITYSET_API LocalVout
{
    bool valid = false;  ///< at least one element was read
    OptElement<std::string> mainVoutType;

    LocalVout() = default;
    explicit LocalVout(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the elements from the record's first child on; null reads nothing.
    void Parse(_xmlNode* firstChild);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("mainVoutType", r.mainVoutType);
    }
};

/// Which settings take effect only after a reboot: 1 for one that does, 0 for one that does not.
struct CAPABILITYSET_API NeedReboot
{
    bool valid = false;  ///< at least one element was read
    int ImportConfigurationFileReboot = 0;
    int EsataUseageChange = 0;
    int AlarmInTypeChange = 0;
    int AnalogChanEnableChange = 0;
    int RestoreConfig = 0;
    int RS232workModeChange = 0;
    int NetPortChange = 0;
    int RtspPortChange = 0;
    int DhcpEnableChange = 0;
    int HttpPortChange = 0;
    int PPPoEChange = 0;
    int NetMultiCastIPChange = 0;
    int HardDiskParamChange = 0;
    int RecordTimeChange = 0;
    int VideoEncodeTypeChange = 0;
    int AudioEncodeTypeChange = 0;
    int StandardTypeChange = 0;
    int DehazeEnableChange = 0;
    int LineCodingEnableChange = 0;
    int LocalOutputEnableChange = 0;
    int LocalMainVoutTypeChange = 0;

    NeedReboot() = default;
    explicit NeedReboot(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the elements from the record's first child on; null reads nothing.
    void Parse(_xmlNode* firstChild);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("ImportConfigurationFileReboot", r.ImportConfigurationFileReboot);
        // Kept: devices spell it so.
        field("EsataUseageChange", r.EsataUseageChange);
        field("AlarmInTypeChange", r.AlarmInTypeChange);
        field("AnalogChanEnableChange", r.AnalogChanEnableChange);
        field("RestoreConfig", r.RestoreConfig);
        field("RS232workModeChange", r.RS232workModeChange);
        field("NetPortChange", r.NetPortChange);
        field("RtspPortChange", r.RtspPortChange);
        field("DhcpEnableChange", r.DhcpEnableChange);
        field("HttpPortChange", r.HttpPortChange);
        field("PPPoEChange", r.PPPoEChange);
        field("NetMultiCastIPChange", r.NetMultiCastIPChange);
        field("HardDiskParamChange", r.HardDiskParamChange);
        field("RecordTimeChange", r.RecordTimeChange);
        field("VideoEncodeTypeChange", r.VideoEncodeTypeChange);
        field("AudioEncodeTypeChange", r.AudioEncodeTypeChange);
        field("StandardTypeChange", r.StandardTypeChange);
        field("DehazeEnableChange", r.DehazeEnableChange);
        field("LineCodingEnableChange", r.LineCodingEnableChange);
        field("LocalOutputEnableChange", r.LocalOutputEnableChange);
        field("LocalMainVoutTypeChange", r.LocalMainVoutTypeChange);
    }
};

/// Functions of the device's software.
struct CAPABILITYSET_API SoftwareCapability
{
    bool valid = false;       ///< at least one element was read
    bool NewHdNo = false;     ///< disks are numbered by the newer scheme
    int MaxNetworkHDNum = 0;  ///< network disks at most
    bool NasSupport = false;
    int NasNumber = 0;
    int ShowStringNumber = 0;               ///< text overlays of a channel
    bool MotionDetectAlarmSupport = false;  ///< motion detection
    bool VILostAlarmSupport = false;        ///< video loss detection
    bool HideAlarmSupport = false;          ///< video tampering detection
    bool ShelterSupport = false;            ///< privacy masks
    bool RtspSupport = false;
    bool RtpoverRtspSupport = false;
    bool RtspoverHttpSupport = false;
    bool NtpSupport = false;
    bool EptzSupport = false;  ///< digital PTZ
    bool PtzSupport = false;
    bool DDNSSupport = false;
    std::string DDNSHostType;
    bool SNMPSupport = false;
    std::string SNMPVersion;
    bool UPNPSupport = false;
    bool iSCSISupport = false;
    int iSCSINum = 0;
    bool Ipv6Support = false;
    bool VCASupport = false;
    bool MultipleStreamSupport = false;
    bool SubStreamSupport = false;
    bool EmailSupport = false;
    std::string SADPVersion;  ///< version of the device discovery protocol
    int ZeroChanNumber = 0;   ///< channels that show several cameras in one picture
    bool BackupSupport = false;
    bool FindFileByEventSupport = false;
    bool SmartSearchSupport = false;
    bool ATMSupport = false;
    bool FileLockSupport = false;
    bool BitrateLimitSupport = false;
    int MaxLoginNum = 0;     ///< users logged in at once
    int MaxPreviewNum = 0;   ///< live views at once
    int MaxPlayBackNum = 0;  ///< playbacks at once
    int MaxChanLinkNum = 0;  ///< connections to one channel
    bool ShutDownSupport = false;
    bool FrameFreezeSupport = false;
    bool HDgroupConfig = false;
    bool RS232Config = false;
    bool PPPoEConfig = false;
    bool RedundancyRecord = false;
    bool VideoOutScaleConfig = false;
    bool GuestUser = false;            ///< guest accounts
    bool UploadFTP = false;            ///< alarm pictures can be sent to an FTP server
    bool NotSupportDiskQuota = false;  ///< disks cannot be shared out among channels
    bool QuotaRatio = false;           ///< quotas are set as percentages
    LocalVout localVout;
    int SingleStorageMaxCap = 0;  ///< largest single storage unit, GB
    bool IPCPlug = false;
    bool DrawFrameRecord = false;
    bool DelInvalidDisk = false;
    bool MountOrUnmountDisk = false;
    int MaxDvcsSubDevNumNum = 0;  ///< subordinate devices at most
    bool NotSupportInputOutputConfigFile = false;
    bool NotSupportLogSearch = false;
    NeedReboot needReboot;
    bool decoderAbility = false;
    bool isSupportLoginTiming = false;
    bool isNotSupportSummerTime = false;
    bool heatMap = false;       ///< heat maps
    bool PDC = false;           ///< people counting
    bool Support3DPTZ = false;  ///< 3D positioning
    bool isSupportGetThumbnails = false;
    bool isSupportOnLineUser = false;
    bool isSupportDownloadVehicleInfo = false;
    bool isSupportClientProxyWEB = false;
    std::string WEBLocation;  ///< where the device's web pages are
    std::string deviceId;     ///< the device's own identifier
    bool isSupportClientProxyWEBInsert = false;
    bool isSupportClientIntelligentConfiguration = false;

    SoftwareCapability() = default;
    explicit SoftwareCapability(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the elements from the record's first child on; null reads nothing.
    void Parse(_xmlNode* firstChild);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("NewHdNo", r.NewHdNo);
        field("MaxNetworkHDNum", r.MaxNetworkHDNum);
        field("NasSupport", r.NasSupport);
        field("NasNumber", r.NasNumber);
        field("ShowStringNumber", r.ShowStringNumber);
        field("MotionDetectAlarmSupport", r.MotionDetectAlarmSupport);
        field("VILostAlarmSupport", r.VILostAlarmSupport);
        field("HideAlarmSupport", r.HideAlarmSupport);
        field("ShelterSupport", r.ShelterSupport);
        field("RtspSupport", r.RtspSupport);
        field("RtpoverRtspSupport", r.RtpoverRtspSupport);
        field("RtspoverHttpSupport", r.RtspoverHttpSupport);
        field("NtpSupport", r.NtpSupport);
        field("EptzSupport", r.EptzSupport);
        field("PtzSupport", r.PtzSupport);
        field("DDNSSupport", r.DDNSSupport);
        field("DDNSHostType", r.DDNSHostType);
        field("SNMPSupport", r.SNMPSupport);
        field("SNMPVersion", r.SNMPVersion);
        field("UPNPSupport", r.UPNPSupport);
        field("iSCSISupport", r.iSCSISupport);
        field("iSCSINum", r.iSCSINum);
        field("Ipv6Support", r.Ipv6Support);
        field("VCASupport", r.VCASupport);
        field("MultipleStreamSupport", r.MultipleStreamSupport);
        field("SubStreamSupport", r.SubStreamSupport);
        field("EmailSupport", r.EmailSupport);
        field("SADPVersion", r.SADPVersion);
        field("ZeroChanNumber", r.ZeroChanNumber);
        field("BackupSupport", r.BackupSupport);
        field("FindFileByEventSupport", r.FindFileByEventSupport);
        field("SmartSearchSupport", r.SmartSearchSupport);
        field("ATMSupport", r.ATMSupport);
        field("FileLockSupport", r.FileLockSupport);
        field("BitrateLimitSupport", r.BitrateLimitSupport);
        field("MaxLoginNum", r.MaxLoginNum);
        field("MaxPreviewNum", r.MaxPreviewNum);
        field("MaxPlayBackNum", r.MaxPlayBackNum);
        field("MaxChanLinkNum", r.MaxChanLinkNum);
        field("ShutDownSupport", r.ShutDownSupport);
        field("FrameFreezeSupport", r.FrameFreezeSupport);
        field("HDgroupConfig", r.HDgroupConfig);
        field("RS232Config", r.RS232Config);
        field("PPPoEConfig", r.PPPoEConfig);
        field("RedundancyRecord", r.RedundancyRecord);
        field("VideoOutScaleConfig", r.VideoOutScaleConfig);
        field("GuestUser", r.GuestUser);
        field("UploadFTP", r.UploadFTP);
        field("NotSupportDiskQuota", r.NotSupportDiskQuota);
        field("QuotaRatio", r.QuotaRatio);
        field("LocalVout", r.localVout);
        field("SingleStorageMaxCap", r.SingleStorageMaxCap);
        field("IPCPlug", r.IPCPlug);
        field("DrawFrameRecord", r.DrawFrameRecord);
        field("DelInvalidDisk", r.DelInvalidDisk);
        field("MountOrUnmountDisk", r.MountOrUnmountDisk);
        // Kept: devices spell it so.
        field("MaxDvcsSubDevNumNum", r.MaxDvcsSubDevNumNum);
        field("NotSupportInputOutputConfigFile", r.NotSupportInputOutputConfigFile);
        field("NotSupportLogSearch", r.NotSupportLogSearch);
        field("NeedReboot", r.needReboot);
        // Kept: clients rely on this element alone leaving the record not valid.
        field("DecoderAbility", r.decoderAbility, as::marker);
        field("isSupportLoginTiming", r.isSupportLoginTiming);
        field("isNotSupportSummerTime", r.isNotSupportSummerTime);
        field("heatMap", r.heatMap, as::presence);
        field("PDC", r.PDC, as::presence);
        field("Support3DPTZ", r.Support3DPTZ);
        field("isSupportGetThumbnails", r.isSupportGetThumbnails, as::presence);
        field("isSupportOnLineUser", r.isSupportOnLineUser);
        field("isSupportDownloadVehicleInfo", r.isSupportDownloadVehicleInfo);
        field("isSupportClientProxyWEB", r.isSupportClientProxyWEB);
        field("WEBLocation", r.WEBLocation);
        field("deviceId", r.deviceId);
        field("isSupportClientProxyWEBInsert", r.isSupportClientProxyWEBInsert);
        field("isSupportClientIntelligentConfiguration", r.isSupportClientIntelligentConfiguration);
    }
};

/// The device's basic ability document.
struct CAPABILITYSET_API BasicCapability
{
    static constexpr const char* kRoot = "BasicCapability";

    bool valid = false;  ///< either part read at least one element
    HardwareCapability hardware;
    SoftwareCapability software;

    BasicCapability() = default;
    explicit BasicCapability(const std::string& text) { Parse(text); }
    explicit BasicCapability(_xmlNode* element) { Parse(element); }

    /// Reads a whole document, root "BasicCapability". An empty text reads nothing; a malformed or
    /// foreign document leaves the record as it was, after one error line. Never throws.
    void Parse(const std::string& text);
    /// Reads the root element's children; null reads nothing.
    void Parse(_xmlNode* element);

    /// Asks a logged-in device. `out` is reset first and stays at its defaults on failure.
    /// Returns true when the device answered, even with a document that could not be read: look
    /// at `out.valid`. On false `err` is 43 (the answer does not fit the largest buffer, 81,920
    /// bytes), 23 (the device does not know the ability, or memory ran out), or the SDK's own
    /// error number, and but for 43 Keel::Error::GetLastError() tells more. May be called from any
    /// thread.
    static bool GetBasicCapability(BasicCapability& out, unsigned int& err, const int userID);

    /// Remembers for the process whether the device named by two texts of the caller's choice
    /// supports 3D positioning. The first flag saved for a pair is kept. Always returns true. The
    /// memory has no lock: callers keep saves and reads from overlapping.
    static bool SaveIsSupper3DPTZAbility(bool value, const std::string& first,
                                         const std::string& second);
    /// The remembered flag; false, with `value` left alone, when none was saved for the pair.
    static bool GetIsSupper3DPTZAbility(bool& value, const std::string& first,
                                        const std::string& second);

    /// The two parts count as read when their own flags say so.
    static constexpr bool kNestedFlagCounts = true;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("HardwareCapability", r.hardware);
        field("SoftwareCapability", r.software);
    }
};

}  // namespace CapabilitySet
