// A client that asks the simulated device for a record by its name.
// SPDX-License-Identifier: Apache-2.0
#include <cstdio>

#include "Catalog/Catalog.h"
#include "Catalog/Nature.h"
#include "PelNetSDK/Login.h"

int main()
{
    namespace catalog = CapabilitySet::catalog;
    tagNET_ORB_LOGIN_INFO login = {};
    login.address = "sim:dome";
    const int userID = NET_ORB_Login(&login);
    const catalog::RecordEntry* const record = catalog::FindRecord("devicestatus");
    const catalog::Answer answer = record->ask(userID, {});
    for (const CapabilitySet::RecordNode& member : answer.values.children) {
        const bool isVolatile = IsVolatile(catalog::NatureOf(record->name, member.name));
        std::printf("%s%s\n", member.name.c_str(), isVolatile ? " (volatile)" : "");
    }
    NET_ORB_Logout(userID);
    return answer.answered && record->read("<x/>").problem.find("root") != std::string::npos ? 0
                                                                                             : 1;
}
