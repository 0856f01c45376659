// Creates a key and a self-signed certificate with OpenSSL.
// SPDX-License-Identifier: Apache-2.0
#include "support/TestCertificate.h"

#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include <stdexcept>

namespace TestSupport
{

namespace
{

void Require(bool done)
{
    if (!done) {
        throw std::runtime_error("OpenSSL could not make the test certificate");
    }
}

void AddExtension(X509* certificate, int kind, const char* value)
{
    const std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)> extension(
        X509V3_EXT_conf_nid(nullptr, nullptr, kind, value), &X509_EXTENSION_free);
    Require(extension && X509_add_ext(certificate, extension.get(), -1) == 1);
}

}  // namespace

TestCertificate::TestCertificate() : context_(SSL_CTX_new(TLS_server_method()))
{
    const std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)> key(EVP_EC_gen("P-256"),
                                                                  &EVP_PKEY_free);
    const std::unique_ptr<X509, decltype(&X509_free)> certificate(X509_new(), &X509_free);
    Require(context_ && key && certificate);
    X509_set_version(certificate.get(), X509_VERSION_3);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -3600);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), 3600);
    X509_set_pubkey(certificate.get(), key.get());
    X509_NAME* const name = X509_get_subject_name(certificate.get());
    const auto* const text = reinterpret_cast<const unsigned char*>("simulated device");
    Require(X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, text, -1, -1, 0) == 1);
    X509_set_issuer_name(certificate.get(), name);
    AddExtension(certificate.get(), NID_basic_constraints, "critical,CA:TRUE");
    AddExtension(certificate.get(), NID_subject_alt_name, "IP:127.0.0.1");
    Require(X509_sign(certificate.get(), key.get(), EVP_sha256()) > 0);
    Require(SSL_CTX_use_certificate(context_.get(), certificate.get()) == 1 &&
            SSL_CTX_use_PrivateKey(context_.get(), key.get()) == 1);

    const std::unique_ptr<BIO, decltype(&BIO_free)> memory(BIO_new(BIO_s_mem()), &BIO_free);
    Require(memory && PEM_write_bio_X509(memory.get(), certificate.get()) == 1);
    char* bytes = nullptr;
    const long size = BIO_get_mem_data(memory.get(), &bytes);
    pem_.assign(bytes, static_cast<std::size_t>(size));
}

}  // namespace TestSupport
