// Certificates for a server that uses TLS.
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

/// Makes a key and a self-signed certificate, valid for a year, for localhost, 127.0.0.1, ::1 and
/// the numeric `address`. Both texts are empty if OpenSSL fails.
Certificate MakeSelfSignedCertificate(const std::string& address);

/// Whether the certificate can be read and the key belongs to it. If not, sets `error` to a
/// message.
bool CheckCertificate(const Certificate& certificate, std::string& error);

}  // namespace Device
