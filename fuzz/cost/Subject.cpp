// What is searched for excessive costs.
// SPDX-License-Identifier: Apache-2.0
#include "fuzz/cost/Subject.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string_view>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "CapabilitySet/XMLConfig/XMLConfigApp.h"
#include "Catalog/AbilityRows.h"
#include "Catalog/EventRows.h"
#include "Catalog/JsonBodyRows.h"
#include "Catalog/JsonRows.h"
#include "Catalog/SettingRows.h"
#include "PelNetSDK/PelNetSDK.h"
#include "fuzz/SocketDevice.h"
#include "fuzz/cost/Grammar.h"

namespace Cost
{
namespace
{

using namespace CapabilitySet;

/// How a client reads one record, and writes it back.
struct Reader
{
    std::string
        word;  ///< the root's name or the key; an input that holds it is meant for the record
    bool isXml = false;
    std::function<void(const std::string&)> parse;
    std::function<void(const std::string&)> parseAndWrite;  ///< empty: it is never sent
};

template <class Record>
std::string RootOf(const char* name)
{
    if constexpr (requires { Record::kRoot; }) {
        return Record::kRoot;
    } else if constexpr (requires { Record::kElement; }) {
        return Record::kElement;
    } else if constexpr (requires { Record::kKey; }) {
        return Record::kKey;
    } else {
        return name;
    }
}

/// Makes a reader of each row of the catalogue.
struct ReaderMaker
{
    std::vector<Reader>& readers;

    template <class Query, class... Picks>
    void operator()(const char* name, const char* /*description*/, Query /*query*/,
                    const Picks&... /*picks*/) const
    {
        using Record = typename catalog::RecordOf<Query>::Type;
        if constexpr (requires(Record r, std::string text) { r.Parse(text); }) {
            Reader reader;
            reader.word = RootOf<Record>(name);
            reader.isXml = !requires { Record::kKey; };
            reader.parse = [](const std::string& text) { Record().Parse(text); };
            if constexpr (requires(const Record r) { r.createXml(); }) {
                reader.parseAndWrite = [](const std::string& text) {
                    Record record;
                    record.Parse(text);
                    static_cast<void>(record.createXml());
                };
            } else if constexpr (requires(const Record r) { r.Make(); }) {
                reader.parseAndWrite = [](const std::string& text) {
                    Record record;
                    record.Parse(text);
                    static_cast<void>(record.Make());
                };
            }
            readers.push_back(std::move(reader));
        }
    }
};

const std::vector<Reader>& Readers()
{
    static const std::vector<Reader> readers = [] {
        std::vector<Reader> made;
        const ReaderMaker maker{made};
        catalog::AbilityRows(maker);
        catalog::EventRows(maker);
        catalog::SettingRows(maker);
        catalog::JsonRows(maker);
        catalog::JsonBodyRows(maker);
        return made;
    }();
    return readers;
}

/// The reader of that format whose word stands first in the input, or the format's first one.
const Reader& ReaderFor(const std::string& input, bool isXml, bool writes)
{
    constexpr std::size_t kLookedAt = 4096;
    const std::string_view head = std::string_view(input).substr(0, kLookedAt);
    const Reader* found = nullptr;
    std::size_t place = std::string_view::npos;
    for (const Reader& reader : Readers()) {
        if (reader.isXml != isXml || (writes && !reader.parseAndWrite)) {
            continue;
        }
        const std::size_t at =
            reader.word.empty() ? std::string_view::npos : head.find(reader.word);
        if (found == nullptr || at < place) {
            found = &reader;
            place = at;
        }
    }
    return *found;
}

void ReadXml(const std::string& input)
{
    // Kept: three lists never end for an item without children; a careful client asks first.
    if (!HasEmptyItem(input)) {
        ReaderFor(input, true, false).parse(input);
    }
}

void ReadJson(const std::string& input)
{
    ReaderFor(input, false, false).parse(input);
}

void WriteXml(const std::string& input)
{
    ReaderFor(input, true, true).parseAndWrite(input);
}

void WriteJson(const std::string& input)
{
    ReaderFor(input, false, true).parseAndWrite(input);
}

/// A client's text in a request line, a JSON body and an XML body. Nobody is logged in, so nothing
/// is sent.
void SendText(const std::string& input)
{
    constexpr int kNobody = 12345;
    unsigned int error = 0;
    HFPDSearchProgress progress;
    JsonConfigApp::GetHFPDSearchProgress(progress, input, error, kNobody);
    AlarmHostLogConditionDescription condition;
    condition.searchID = input;
    AlarmHostDeviceLogResult log;
    JsonConfigApp::GetAlarmHostDeviceLog(condition, log, error, kNobody);
    CMSearchDescription search;
    search.searchID = input;
    static_cast<void>(search.createXml());
}

/// What a device sends, the same on every connection.
void ReceiveHttp(const std::string& input)
{
    constexpr std::size_t kConnections = 4;
    const Fuzz::SocketDevice device(std::vector<std::string_view>(kConnections, input));
    std::string line = "GET /TARN/System/capabilities\r\n";
    std::vector<char> answer(std::size_t{512} * 1024);
    std::array<char, 4096> status{};
    tagNET_ORB_XML_CONFIG_INPUT in{};
    in.size = sizeof in;
    in.requestUrl = line.data();
    in.requestUrlLength = static_cast<unsigned>(line.size());
    tagNET_ORB_XML_CONFIG_OUTPUT out{};
    out.size = sizeof out;
    out.outBuffer = answer.data();
    out.outBufferSize = static_cast<unsigned>(answer.size());
    out.statusBuffer = status.data();
    out.statusSize = status.size();
    static_cast<void>(NET_ORB_STDXMLConfig(device.UserID(), &in, &out));
}

std::vector<std::string> Documents(const std::string& folder, const std::string& extension)
{
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file() && entry.path().extension() == extension) {
            files.push_back(entry.path());
        }
    }
    std::ranges::sort(files);  // so that a search can be repeated
    std::vector<std::string> documents;
    for (const auto& file : files) {
        std::ifstream stream(file, std::ios::binary);
        documents.emplace_back(std::istreambuf_iterator<char>(stream),
                               std::istreambuf_iterator<char>());
    }
    return documents;
}

void Append(std::vector<Shape>& shapes, std::vector<Shape> more)
{
    std::ranges::move(more, std::back_inserter(shapes));
}

std::vector<Shape> Seeds(const std::string& folder, bool isXml, bool writes)
{
    std::vector<Shape> seeds;
    for (const std::string& document : Documents(folder, isXml ? ".xml" : ".json")) {
        Append(seeds, RepeatedParts(document));
    }
    std::size_t number = 0;
    for (const Reader& reader : Readers()) {
        // Every construct inside every tenth record: a construct costs the same in most.
        if (reader.isXml == isXml && (!writes || reader.parseAndWrite) && number++ % 10 == 0) {
            Append(seeds, isXml ? XmlShapes(reader.word) : JsonShapes(reader.word));
        }
    }
    return seeds;
}

}  // namespace

std::vector<Subject> AllSubjects(const std::string& folder)
{
    return {
        {"ReadXml", Seeds(folder, true, false), XmlWords(), ReadXml},
        {"ReadJson", Seeds(folder, false, false), JsonWords(), ReadJson},
        {"WriteXml", Seeds(folder, true, true), XmlWords(), WriteXml},
        {"WriteJson", Seeds(folder, false, true), JsonWords(), WriteJson},
        {"SendText", TextShapes(), XmlWords(), SendText},
        {"Http", HttpShapes(), HttpWords(), ReceiveHttp},
    };
}

}  // namespace Cost
