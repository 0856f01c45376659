// The software part of the basic capability: functions of the firmware, and what needs a reboot.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/CapabilityElements.h"
#include "CapabilitySet/FieldTags.h"

struct _xmlNode;

namespace CapabilitySet
{

// Parse takes the first child of a record's element.

/// The local video output.
struct CAPABILITYSET_API LocalVout
{
    bool valid = false;                    ///< at least one element was read
    OptElement<std::string> mainVoutType;  ///< outputs that can be the main one, such as "HDMI1"

    LocalVout() = default;
    explicit LocalVout(_xmlNode* firstChild) { Parse(firstChild); }

    void Parse(_xmlNode* firstChild);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("mainVoutType", r.mainVoutType);
    }
};

/// Settings that take effect only after a reboot: 1 if the setting does, 0 if not.
struct CAPABILITYSET_API NeedReboot
{
    bool valid = false;                     ///< at least one element was read
    int ImportConfigurationFileReboot = 0;  ///< importing a configuration file
    int EsataUseageChange = 0;              ///< use of the eSATA port
    int AlarmInTypeChange = 0;              ///< type of the alarm inputs
    int AnalogChanEnableChange = 0;         ///< analogue channels on or off
    int RestoreConfig = 0;                  ///< restoring the default configuration
    int RS232workModeChange = 0;            ///< work mode of the RS-232 port
    int NetPortChange = 0;                  ///< network port
    int RtspPortChange = 0;                 ///< RTSP port
    int DhcpEnableChange = 0;               ///< DHCP on or off
    int HttpPortChange = 0;                 ///< HTTP port
    int PPPoEChange = 0;                    ///< PPPoE settings
    int NetMultiCastIPChange = 0;           ///< multicast address
    int HardDiskParamChange = 0;            ///< hard disk settings
    int RecordTimeChange = 0;               ///< recording times
    int VideoEncodeTypeChange = 0;          ///< video encoding
    int AudioEncodeTypeChange = 0;          ///< audio encoding
    int StandardTypeChange = 0;             ///< video standard
    int DehazeEnableChange = 0;             ///< defogging on or off
    int LineCodingEnableChange = 0;         ///< line coding on or off
    int LocalOutputEnableChange = 0;        ///< local output on or off
    int LocalMainVoutTypeChange = 0;        ///< which output is the main one

    NeedReboot() = default;
    explicit NeedReboot(_xmlNode* firstChild) { Parse(firstChild); }

    void Parse(_xmlNode* firstChild);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("ImportConfigurationFileReboot", r.ImportConfigurationFileReboot);
        // Kept: devices spell it this way.
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

/// Functions of the device's firmware. Flags say what the device supports unless noted.
struct CAPABILITYSET_API SoftwareCapability
{
    bool valid = false;                     ///< at least one element was read
    bool NewHdNo = false;                   ///< disks are numbered by the newer scheme
    int MaxNetworkHDNum = 0;                ///< maximum network disks
    bool NasSupport = false;                ///< NAS storage
    int NasNumber = 0;                      ///< NAS servers
    int ShowStringNumber = 0;               ///< text overlays per channel
    bool MotionDetectAlarmSupport = false;  ///< motion detection
    bool VILostAlarmSupport = false;        ///< video loss detection
    bool HideAlarmSupport = false;          ///< video tampering detection
    bool ShelterSupport = false;            ///< privacy masks
    bool RtspSupport = false;               ///< RTSP
    bool RtpoverRtspSupport = false;        ///< RTP over RTSP
    bool RtspoverHttpSupport = false;       ///< RTSP over HTTP
    bool NtpSupport = false;                ///< NTP
    bool EptzSupport = false;               ///< digital PTZ
    bool PtzSupport = false;                ///< PTZ control
    bool DDNSSupport = false;               ///< dynamic DNS
    std::string DDNSHostType;               ///< DDNS services, comma-separated
    bool SNMPSupport = false;               ///< SNMP
    std::string SNMPVersion;                ///< SNMP versions, comma-separated, such as "v1,v2c,v3"
    bool UPNPSupport = false;               ///< UPnP
    bool iSCSISupport = false;              ///< iSCSI storage
    int iSCSINum = 0;                       ///< iSCSI disks
    bool Ipv6Support = false;               ///< IPv6
    bool VCASupport = false;                ///< video content analysis
    bool MultipleStreamSupport = false;     ///< several streams per channel
    bool SubStreamSupport = false;          ///< sub-streams
    bool EmailSupport = false;              ///< e-mail notification
    std::string SADPVersion;                ///< version of the device discovery protocol
    int ZeroChanNumber = 0;                 ///< channels that show several cameras in one picture
    bool BackupSupport = false;             ///< backup of recordings
    bool FindFileByEventSupport = false;    ///< searching recordings by event
    bool SmartSearchSupport = false;        ///< smart search in recordings
    bool ATMSupport = false;                ///< ATM functions
    bool FileLockSupport = false;           ///< locking recordings against overwriting
    bool BitrateLimitSupport = false;       ///< bit rate limits
    int MaxLoginNum = 0;                    ///< maximum users logged in at once
    int MaxPreviewNum = 0;                  ///< maximum live views at once
    int MaxPlayBackNum = 0;                 ///< maximum playbacks at once
    int MaxChanLinkNum = 0;                 ///< maximum connections to one channel
    bool ShutDownSupport = false;           ///< remote shutdown
    bool FrameFreezeSupport = false;        ///< freezing the picture
    bool HDgroupConfig = false;             ///< disk groups
    bool RS232Config = false;               ///< RS-232 settings
    bool PPPoEConfig = false;               ///< PPPoE settings
    bool RedundancyRecord = false;          ///< redundant recording
    bool VideoOutScaleConfig = false;       ///< scaling of the video output
    bool GuestUser = false;                 ///< guest accounts
    bool UploadFTP = false;                 ///< uploading alarm pictures to an FTP server
    bool NotSupportDiskQuota = false;       ///< true: no disk quotas per channel
    bool QuotaRatio = false;                ///< quotas are set as percentages
    LocalVout localVout;                    ///< the local video output
    int SingleStorageMaxCap = 0;            ///< largest single storage unit, GB
    bool IPCPlug = false;                   ///< plugging in network cameras
    bool DrawFrameRecord = false;           ///< recording with frames left out
    bool DelInvalidDisk = false;            ///< removing invalid disks
    bool MountOrUnmountDisk = false;        ///< mounting and unmounting disks
    int MaxDvcsSubDevNumNum = 0;            ///< maximum subordinate devices
    bool NotSupportInputOutputConfigFile = false;  ///< true: no configuration import
    bool NotSupportLogSearch = false;              ///< true: no log search
    NeedReboot needReboot;                         ///< settings that need a reboot
    bool decoderAbility = false;                   ///< there is a decoder ability
    bool isSupportLoginTiming = false;             ///< login times
    bool isNotSupportSummerTime = false;           ///< true: no daylight saving time
    bool heatMap = false;                          ///< heat maps
    bool PDC = false;                              ///< people counting
    bool Support3DPTZ = false;                     ///< 3D positioning
    bool isSupportGetThumbnails = false;           ///< fetching thumbnails
    bool isSupportOnLineUser = false;              ///< listing users who are online
    bool isSupportDownloadVehicleInfo = false;     ///< downloading vehicle information
    bool isSupportClientProxyWEB = false;          ///< showing its web pages through the client
    std::string WEBLocation;                       ///< path of its web pages
    std::string deviceId;                          ///< identifier of the device
    bool isSupportClientProxyWEBInsert = false;    ///< embedding its web pages in the client
    bool isSupportClientIntelligentConfiguration = false;  ///< configuring analysis from the client

    SoftwareCapability() = default;
    explicit SoftwareCapability(_xmlNode* firstChild) { Parse(firstChild); }

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
        // Kept: devices spell it this way.
        field("MaxDvcsSubDevNumNum", r.MaxDvcsSubDevNumNum);
        field("NotSupportInputOutputConfigFile", r.NotSupportInputOutputConfigFile);
        field("NotSupportLogSearch", r.NotSupportLogSearch);
        field("NeedReboot", r.needReboot);
        // Kept: clients rely on this element not making the record valid.
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

}  // namespace CapabilitySet
