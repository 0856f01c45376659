// A client that queries the simulated device through the portable SDK.
// SPDX-License-Identifier: Apache-2.0
#include <cstdio>

#include "CapabilitySet/BasicCapability.h"
#include "CommonMethod/SDKErrorCode/SDKErrorCode.h"
#include "Keel/Error.h"
#include "PelNetSDK/Login.h"

int main()
{
    tagNET_ORB_LOGIN_INFO login = {};
    login.address = "sim:dome";
    const int userID = NET_ORB_Login(&login);

    CapabilitySet::BasicCapability out;
    unsigned int err = 0;
    const bool answered =
        CapabilitySet::BasicCapability::GetBasicCapability(out, err, userID) && out.valid;
    std::printf("user %d, answered %d, err %u\n", userID, answered, err);

    // A user ID that nobody logged in: the error comes back through the SDK and the last error.
    const bool refused =
        !CapabilitySet::BasicCapability::GetBasicCapability(out, err, userID + 1000);
    const Keel::Error::ErrorCode& last = Keel::Error::GetLastError();
    int module = 0;
    int code = 0;
    comm_method::getLastSDKError(module, code);
    std::printf("refused %d, err %u, last error %d-%d, the SDK's %d-%d\n", refused, err,
                last.module, last.code, module, code);
    NET_ORB_Logout(userID);
    return answered && refused && err == NET_ORB_NOINIT && code == static_cast<int>(err) &&
                   last.code == code && last.module == Keel::Error::kModuleSdk
               ? 0
               : 1;
}
