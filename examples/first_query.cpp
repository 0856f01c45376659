// A first query: log in to a device, ask what it can do, print a few answers, log out.
// SPDX-License-Identifier: Apache-2.0
#include <iostream>

#include "CapabilitySet/BasicCapability.h"
#include "PelNetSDK/Login.h"

// [client]
int main(int argc, char** argv)
{
    tagNET_ORB_LOGIN_INFO login = {};
    login.address = argc > 1 ? argv[1] : "sim:dome";  // or "https://192.168.1.64"
    const int userID = NET_ORB_Login(&login);

    CapabilitySet::BasicCapability out;
    unsigned int err = NET_ORB_GetLastError();
    if (userID < 0 || !CapabilitySet::BasicCapability::GetBasicCapability(out, err, userID)) {
        std::cerr << "no answer: " << NET_ORB_GetErrorText(err) << " (" << err << ")\n";
        return 1;
    }
    std::cout << "alarm inputs: " << out.hardware.AlarmInPortNum << '\n';
    std::cout << "pan and tilt: " << (out.software.PtzSupport ? "yes" : "no") << '\n';
    NET_ORB_Logout(userID);
    return 0;
}
// [client]
