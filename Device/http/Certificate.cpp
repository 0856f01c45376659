// Makes and checks certificates.
// SPDX-License-Identifier: Apache-2.0
#include "Device/http/Certificate.h"

#include <openssl/bio.h>
#include <openssl/err.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

#include <memory>

namespace Device
{
namespace
{

template <class T, void (*Free)(T*)>
struct Freed
{
    void operator()(T* object) const { Free(object); }
};

using Key = std::unique_ptr<EVP_PKEY, Freed<EVP_PKEY, &EVP_PKEY_free>>;
using X509Ptr = std::unique_ptr<X509, Freed<X509, &X509_free>>;
using Extension = std::unique_ptr<X509_EXTENSION, Freed<X509_EXTENSION, &X509_EXTENSION_free>>;
using Memory = std::unique_ptr<BIO, Freed<BIO, &BIO_free_all>>;

constexpr long kDay = 24L * 60 * 60;

bool AddExtension(X509* certificate, int kind, const std::string& value)
{
    X509V3_CTX context;
    X509V3_set_ctx_nodb(&context);
    X509V3_set_ctx(&context, certificate, certificate, nullptr, nullptr, 0);
    const Extension extension(X509V3_EXT_conf_nid(nullptr, &context, kind, value.c_str()));
    return extension && X509_add_ext(certificate, extension.get(), -1) == 1;
}

bool Fill(X509* certificate, EVP_PKEY* key, const std::string& address)
{
    std::uint64_t serial = 0;
    X509_NAME* name = X509_get_subject_name(certificate);
    const auto* commonName = reinterpret_cast<const unsigned char*>("Simulated device");
    std::string names = "DNS:localhost,IP:127.0.0.1,IP:::1";
    if (address != "127.0.0.1" && address != "::1") {
        names += ",IP:" + address;
    }
    return RAND_bytes(reinterpret_cast<unsigned char*>(&serial), sizeof serial) == 1 &&
           X509_set_version(certificate, X509_VERSION_3) == 1 &&
           ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate), serial >> 1) == 1 &&
           X509_gmtime_adj(X509_getm_notBefore(certificate), -kDay) != nullptr &&
           X509_gmtime_adj(X509_getm_notAfter(certificate), 365 * kDay) != nullptr &&
           X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, commonName, -1, -1, 0) == 1 &&
           X509_set_issuer_name(certificate, name) == 1 && X509_set_pubkey(certificate, key) == 1 &&
           AddExtension(certificate, NID_basic_constraints, "critical,CA:TRUE") &&
           AddExtension(certificate, NID_key_usage, "critical,digitalSignature,keyCertSign") &&
           AddExtension(certificate, NID_subject_key_identifier, "hash") &&
           AddExtension(certificate, NID_subject_alt_name, names) &&
           X509_sign(certificate, key, EVP_sha256()) > 0;
}

BIO* Reader(const std::string& text)
{
    return BIO_new_mem_buf(text.data(), static_cast<int>(text.size()));
}

std::string Content(BIO* memory)
{
    char* data = nullptr;
    const long size = BIO_get_mem_data(memory, &data);
    return size > 0 ? std::string(data, static_cast<size_t>(size)) : std::string();
}

}  // namespace

Certificate MakeSelfSignedCertificate(const std::string& address)
{
    const Key key(EVP_EC_gen("P-256"));
    const X509Ptr certificate(X509_new());
    const Memory certificateText(BIO_new(BIO_s_mem()));
    const Memory keyText(BIO_new(BIO_s_mem()));
    if (!key || !certificate || !certificateText || !keyText ||
        !Fill(certificate.get(), key.get(), address) ||
        PEM_write_bio_X509(certificateText.get(), certificate.get()) != 1 ||
        PEM_write_bio_PrivateKey(keyText.get(), key.get(), nullptr, nullptr, 0, nullptr, nullptr) !=
            1) {
        return {};
    }
    return {Content(certificateText.get()), Content(keyText.get())};
}

bool CheckCertificate(const Certificate& certificate, std::string& error)
{
    const Memory certificateText(Reader(certificate.certificatePem));
    const Memory keyText(Reader(certificate.keyPem));
    // A key with a passphrase must not ask for it on the terminal.
    const auto noPassphrase = [](char*, int, int, void*) { return -1; };
    const X509Ptr read(PEM_read_bio_X509(certificateText.get(), nullptr, nullptr, nullptr));
    const Key key(PEM_read_bio_PrivateKey(keyText.get(), nullptr, noPassphrase, nullptr));
    error = !read  ? "the certificate is not a PEM certificate"
            : !key ? "the key is not a PEM key without passphrase"
            : X509_check_private_key(read.get(), key.get()) != 1
                ? "the key does not belong to the certificate"
                : "";
    ERR_clear_error();
    return error.empty();
}

}  // namespace Device
