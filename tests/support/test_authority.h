#pragma once

#include <memory>
#include <string>

#include <openssl/evp.h>
#include <openssl/x509.h>

namespace kalvo::tests {

/// What a TLS server shows and proves itself with, both as PEM texts.
struct TlsIdentity {
    std::string certificate;
    std::string privateKey;
};

/// A certificate authority made when a test runs, so that nothing secret lies in the repository
/// and nothing expires with the years. Nobody trusts it but who adds its certificate.
class TestAuthority {
 public:
    TestAuthority();

    [[nodiscard]] std::string certificate() const;  // PEM

    /// An identity for an IP address, valid from yesterday until the given number of days from
    /// now (negative: it has expired).
    [[nodiscard]] TlsIdentity issue(const std::string& ipAddress, int days) const;

 private:
    struct Free {
        void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
        void operator()(X509* certificate) const { X509_free(certificate); }
    };
    using Key = std::unique_ptr<EVP_PKEY, Free>;
    using Certificate = std::unique_ptr<X509, Free>;

    [[nodiscard]] static Certificate blankCertificate(EVP_PKEY* key,
                                                      const std::string& name,
                                                      int days);

    Key key_;
    Certificate certificate_;
};

}  // namespace kalvo::tests
