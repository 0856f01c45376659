// The hardware part of the basic capability: ports, disks, channels and outputs.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/CapabilityElements.h"
#include "CapabilitySet/FieldTags.h"

struct _xmlNode;

namespace CapabilitySet
{

// Parse takes the first child of a record's element.

/// Port numbers of the RS-485 ports.
struct CAPABILITYSET_API RS485OfBC
{
    bool valid = false;               ///< at least one element was read
    MinMaxElement localRs485No;       ///< ports on the device itself
    MinMaxElement expandRS485No;      ///< ports on extension modules
    MinMaxElement fullDuplexRS485No;  ///< full-duplex ports
    MinMaxElement semiDuplexRS485No;  ///< half-duplex ports
    MinMaxElement _485SlotNo;         ///< "485SlotNo": slots for RS-485 modules

    RS485OfBC() = default;
    explicit RS485OfBC(_xmlNode* firstChild) { Parse(firstChild); }

    void Parse(_xmlNode* firstChild);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("localRs485No", r.localRs485No, as::attributes);
        field("expandRS485No", r.expandRS485No, as::attributes);
        field("fullDuplexRS485No", r.fullDuplexRS485No, as::attributes);
        field("semiDuplexRS485No", r.semiDuplexRS485No, as::attributes);
        // Kept: no well-formed document can hold this name.
        field("485SlotNo", r._485SlotNo, as::attributes);
    }
};

/// Zone numbers of an alarm host.
struct CAPABILITYSET_API ZoneNum
{
    bool valid = false;          ///< at least one element was read
    MinMaxElement localZoneNo;   ///< zones wired to the host
    MinMaxElement extendZoneNo;  ///< zones on extension modules

    ZoneNum() = default;
    explicit ZoneNum(_xmlNode* firstChild) { Parse(firstChild); }

    void Parse(_xmlNode* firstChild);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("localZoneNo", r.localZoneNo, as::attributes);
        field("extendZoneNo", r.extendZoneNo, as::attributes);
    }
};

/// Output numbers of an alarm host.
struct CAPABILITYSET_API TriggerNum
{
    bool valid = false;             ///< at least one element was read
    MinMaxElement localTriggerNo;   ///< outputs on the host
    MinMaxElement extendTriggerNo;  ///< outputs on extension modules

    TriggerNum() = default;
    explicit TriggerNum(_xmlNode* firstChild) { Parse(firstChild); }

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
    bool valid = false;            ///< at least one element was read
    int totalSensorNum = 0;        ///< number of sensors
    MinMaxElement localSensorNo;   ///< sensor numbers on the host
    MinMaxElement expandSensorNo;  ///< sensor numbers on extension modules

    Sensor() = default;
    explicit Sensor(_xmlNode* firstChild) { Parse(firstChild); }

    void Parse(_xmlNode* firstChild);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("totalSensorNum", r.totalSensorNum);
        field("localSensorNo", r.localSensorNo, as::attributes);
        field("expandSensorNo", r.expandSensorNo, as::attributes);
    }
};

/// Ports, disks, channels and outputs of a device.
struct CAPABILITYSET_API HardwareCapability
{
    bool valid = false;             ///< at least one element was read
    int HardwareVersion = 0;        ///< hardware revision, as the device numbers it
    int AlarmInPortNum = 0;         ///< alarm inputs
    int AlarmOutPortNum = 0;        ///< alarm outputs
    int RS232Num = 0;               ///< RS-232 ports
    int RS485Num = 0;               ///< RS-485 ports
    int NetworkPortNum = 0;         ///< network sockets
    int USBNum = 0;                 ///< USB ports
    int FlashSize = 0;              ///< flash memory, MB
    int RamSize = 0;                ///< main memory, MB
    unsigned int USBVersion = 0;    ///< USB standard of the ports, such as 2 or 3
    int SDNum = 0;                  ///< SD card slots
    int HardDiskNum = 0;            ///< hard disks the device can hold
    int SATANum = 0;                ///< SATA ports
    int eSATANum = 0;               ///< eSATA ports
    int miniSASNum = 0;             ///< mini-SAS ports
    int VideoInNum = 0;             ///< video inputs
    int AudioInNum = 0;             ///< audio inputs
    int VideoOutNum = 0;            ///< video outputs
    int AudioOutNum = 0;            ///< audio outputs
    int AudioTalkNum = 0;           ///< two-way audio channels
    bool SDSupport = false;         ///< takes SD cards
    bool WiFiSupport = false;       ///< has Wi-Fi
    bool POESupport = false;        ///< supports Power over Ethernet
    bool IRSupport = false;         ///< supports infrared
    bool VideoOutSupport = false;   ///< has video output
    bool ResetSupport = false;      ///< can be reset
    int AnalogChannelNum = 0;       ///< analogue channels
    int IPChannelNum = 0;           ///< IP channels
    bool MultiNetworkCard = false;  ///< has more than one network interface
    int NetworkCardNumber = 0;      ///< network interfaces
    bool BondingSupport = false;    ///< network interfaces can be bonded
    int VGANumber = 0;              ///< VGA outputs
    int HDMINumber = 0;             ///< HDMI outputs
    int CVBSNumber = 0;             ///< composite video outputs
    int AuxoutNumber = 0;           ///< auxiliary outputs
    unsigned int RAIDType = 0;      ///< RAID support, as the device codes it
    RS485OfBC RS485;                ///< RS-485 port numbers
    ZoneNum zoneNum;                ///< zones of an alarm host
    MinMaxElement sirenNo;          ///< siren numbers
    MinMaxElement electroLockNo;    ///< electric lock numbers
    MinMaxElement mobileGateNo;     ///< movable gate numbers
    TriggerNum triggerNum;          ///< outputs of an alarm host
    Sensor sensor;                  ///< analogue sensors of an alarm host

    HardwareCapability() = default;
    explicit HardwareCapability(_xmlNode* firstChild) { Parse(firstChild); }

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

}  // namespace CapabilitySet
