// Creates a self-signed certificate for 127.0.0.1.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <openssl/ssl.h>

#include <memory>
#include <string>

namespace TestSupport
{

class TestCertificate
{
public:
    TestCertificate();

    /// For servers that present the certificate; owned by this object.
    [[nodiscard]] SSL_CTX* Context() const { return context_.get(); }
    /// The certificate in PEM, for clients that trust it.
    [[nodiscard]] const std::string& Pem() const { return pem_; }

private:
    struct Freer
    {
        void operator()(SSL_CTX* context) const { SSL_CTX_free(context); }
    };

    std::unique_ptr<SSL_CTX, Freer> context_;
    std::string pem_;
};

}  // namespace TestSupport
