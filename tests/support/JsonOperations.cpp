// The JSON operations, collected from their tables.
// SPDX-License-Identifier: Apache-2.0
#include "support/JsonOperations.h"

#include <json/reader.h>
#include <json/value.h>

namespace TestSupport
{

const std::vector<JsonOperationRow>& JsonOperations()
{
    static const std::vector<JsonOperationRow> all = [] {
        std::vector<JsonOperationRow> rows;
        for (auto& table : {JsonCapabilityRows(), AlarmHostRows(), JsonConfigRows()}) {
            rows.insert(rows.end(), table.begin(), table.end());
        }
        return rows;
    }();
    return all;
}

JsonOperationRow JsonRow(const char* name, std::function<JsonAnswered(const char*)> ask,
                         std::string request, const char* answer, const std::string& body)
{
    Json::Value tree;
    const bool hasBody = Json::Reader().parse(body, tree);
    const bool converts = request.find("/channels/35/") != std::string::npos;
    return {.name = name,
            .request = std::move(request),
            .answer = answer,
            .ask = std::move(ask),
            .body = hasBody ? tree.toStyledString() : body,
            .convertsChannel = converts};
}

}  // namespace TestSupport
