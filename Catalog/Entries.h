// Makes the catalogue's entries of its rows.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"
#include "Catalog/PtzLists.h"
#include "Catalog/Rows.h"
#include "PelNetSDK/PelNetSDK.h"

namespace CapabilitySet::catalog
{

/// A record type's name without its namespace, as the compiler writes it.
template <class Record>
std::string TypeName()
{
    const std::string_view signature = __PRETTY_FUNCTION__;
    const std::string_view name = "Record = ";
    std::string_view type = signature.substr(signature.find(name) + name.size());
    type = type.substr(0, type.find_first_of(";]"));
    return std::string(type.substr(type.rfind(':') + 1));
}

/// The options of the picks, without the arguments that nobody chooses.
template <class... Picks>
std::vector<std::string> SelectorsOf(const Picks&... picks)
{
    std::vector<std::string> selectors;
    [[maybe_unused]] const auto add = [&selectors](const char* selector) {
        if (selector != nullptr) {
            selectors.emplace_back(selector);
        }
    };
    (add(picks.selector), ...);
    return selectors;
}

/// Calls a query with the picks in its order; its error slot, by reference or by value, is
/// optional.
template <class Record, class... Arguments, class... Picks>
    requires(sizeof...(Arguments) == sizeof...(Picks))
bool CallQuery(bool (*query)(Record&, Arguments...), Record& record, unsigned int& /*error*/,
               int userID, const Selectors& selectors, const Picks&... picks)
{
    return query(record,
                 static_cast<std::remove_cvref_t<Arguments>>(picks.take(userID, selectors))...);
}

template <class Record, class Slot, class... Arguments, class... Picks>
    requires(sizeof...(Arguments) == sizeof...(Picks))
bool CallQuery(bool (*query)(Record&, Slot, Arguments...), Record& record, unsigned int& error,
               int userID, const Selectors& selectors, const Picks&... picks)
{
    return query(record, error,
                 static_cast<std::remove_cvref_t<Arguments>>(picks.take(userID, selectors))...);
}

/// The error number of a request through the transparent manager; 0 when it failed before the SDK.
inline unsigned int ErrorOf(const ParseXmlHelper::InterfaceRet& result)
{
    constexpr int kSdkFailure = 2;
    return result.errorType == kSdkFailure ? static_cast<unsigned int>(result.errorCode) : 0;
}

template <class Record, class... Picks>
bool CallQuery(ParseXmlHelper::InterfaceRet (*query)(Record&, int), Record& record,
               unsigned int& error, int userID, const Selectors& /*selectors*/,
               const Picks&... /*kUser*/)
{
    const ParseXmlHelper::InterfaceRet result = query(record, userID);
    error = ErrorOf(result);
    return result.success;
}

/// Adds an entry for each row.
class EntryMaker
{
public:
    explicit EntryMaker(std::vector<RecordEntry>& entries) : entries_(entries) {}

    template <class Query, class... Picks>
    void operator()(const char* name, const char* description, Query query, const Picks&... picks)
    {
        using Record = typename RecordOf<Query>::Type;
        RecordEntry entry;
        entry.name = name;
        entry.description = description;
        entry.type = TypeName<Record>();
        entry.format = ReadsXml<Record> ? Format::Xml : Format::Json;
        entry.selectors = SelectorsOf(picks...);
        entry.blank = [name] { return Describe(name, Record()); };
        entry.read = [name](const std::string& text) { return Read<Record>(name, text); };
        constexpr bool kOrdersUser = (std::is_same_v<const Picks, decltype(kUser)> || ...);
        if constexpr (std::is_pointer_v<Query> && kOrdersUser) {
            entry.ask = Ask<Record>(name, query, picks...);
        } else if constexpr (std::is_pointer_v<Query>) {
            entry.ask = Ask<Record>(name, query, kUser, picks...);
        } else if constexpr (std::is_same_v<Query, PtzList<Record>>) {
            entry.ask = [list = query.name, channel = kChannel](int userID, const Selectors& each) {
                return AskPtzList<Record>(list, userID, channel.take(userID, each));
            };
        }
        entries_.push_back(std::move(entry));
    }

private:
    template <class Record, class Query, class... Picks>
    static auto Ask(const char* name, Query query, const Picks&... picks)
    {
        return [name, query, picks...](int userID, const Selectors& selectors) {
            Answer answer;
            Record record;
            answer.answered = CallQuery(query, record, answer.error, userID, selectors, picks...);
            if (!answer.answered && answer.error == 0) {  // the query does not report it
                answer.error = NET_ORB_GetLastError();
            }
            answer.values = DescribeWhole(name, record);
            return answer;
        };
    }

    template <class Record>
    static Reading Read(const char* name, const std::string& text)
    {
        if constexpr (IsPtzList<Record>) {
            return ReadPtzList<Record>(text);
        } else {
            return Explain<Record>(name, text);
        }
    }

    std::vector<RecordEntry>& entries_;
};

}  // namespace CapabilitySet::catalog
