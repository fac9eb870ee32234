#include "tests/support/test_authority.h"

#include <random>
#include <stdexcept>
#include <vector>

#include <openssl/bio.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

namespace kalvo::tests {

namespace {

constexpr long kSecondsOfDay = 24L * 60 * 60;

void require(bool succeeded) {
    if (!succeeded) throw std::runtime_error("OpenSSL refused to make a test certificate");
}

template <class Write>
std::string pem(Write write) {
    const std::unique_ptr<BIO, decltype(&BIO_free)> memory(BIO_new(BIO_s_mem()), &BIO_free);
    require(memory != nullptr && write(memory.get()) == 1);
    char* text = nullptr;
    const long length = BIO_get_mem_data(memory.get(), &text);
    return {text, static_cast<std::size_t>(length)};
}

std::string pem(X509* certificate) {
    return pem([&](BIO* out) { return PEM_write_bio_X509(out, certificate); });
}

void extend(X509* certificate, int extension, const std::string& value) {
    const std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)> made(
        X509V3_EXT_conf_nid(nullptr, nullptr, extension, value.c_str()), &X509_EXTENSION_free);
    require(made != nullptr && X509_add_ext(certificate, made.get(), -1) == 1);
}

}  // namespace

TestAuthority::TestAuthority()
    : key_(EVP_EC_gen("P-256")), certificate_(blankCertificate(key_.get(), "Test authority", 1)) {
    extend(certificate_.get(), NID_basic_constraints, "critical,CA:TRUE");
    extend(certificate_.get(), NID_key_usage, "critical,keyCertSign");
    require(X509_sign(certificate_.get(), key_.get(), EVP_sha256()) != 0);
}

std::string TestAuthority::certificate() const { return pem(certificate_.get()); }

TlsIdentity TestAuthority::issue(const std::string& ipAddress, int days) const {
    const Key key(EVP_EC_gen("P-256"));
    const Certificate issued = blankCertificate(key.get(), ipAddress, days);
    require(X509_set_issuer_name(issued.get(), X509_get_subject_name(certificate_.get())) == 1);
    extend(issued.get(), NID_subject_alt_name, "IP:" + ipAddress);
    require(X509_sign(issued.get(), key_.get(), EVP_sha256()) != 0);
    const auto writeKey = [&](BIO* out) {
        return PEM_write_bio_PrivateKey(out, key.get(), nullptr, nullptr, 0, nullptr, nullptr);
    };
    return {.certificate = pem(issued.get()), .privateKey = pem(writeKey)};
}

TestAuthority::Certificate TestAuthority::blankCertificate(EVP_PKEY* key,
                                                           const std::string& name,
                                                           int days) {
    Certificate certificate(X509_new());
    require(key != nullptr && certificate != nullptr);
    require(X509_set_version(certificate.get(), X509_VERSION_3) == 1);
    require(ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate.get()),
                                    std::random_device()()) == 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -2 * kSecondsOfDay);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), days * kSecondsOfDay);
    X509_NAME* const subject = X509_get_subject_name(certificate.get());
    const std::vector<unsigned char> text(name.begin(), name.end());
    require(X509_NAME_add_entry_by_txt(subject, "CN", MBSTRING_UTF8, text.data(),
                                       static_cast<int>(text.size()), -1, 0) == 1);
    require(X509_set_issuer_name(certificate.get(), subject) == 1);
    require(X509_set_pubkey(certificate.get(), key) == 1);
    return certificate;
}

}  // namespace kalvo::tests
