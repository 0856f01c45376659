// A certificate for a server that nobody has given one.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace Device
{

struct Certificate
{
    std::string certificatePem;
    std::string keyPem;
};

/// Makes a key and a certificate that it signs itself, valid for a year, for localhost, 127.0.0.1,
/// ::1 and `address` (a numeric one). Both texts are empty when OpenSSL fails.
Certificate MakeSelfSignedCertificate(const std::string& address);

}  // namespace Device
