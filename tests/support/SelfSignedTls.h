// TLS with a certificate that nobody vouches for.
#pragma once

#include <openssl/evp.h>
#include <openssl/ssl.h>
#include <openssl/x509.h>

#include <memory>
#include <string_view>

namespace sonavel::test {

/// Answers each client that goes on despite the certificate (for "localhost", signed by itself) with `answer`.
class SelfSignedTls {
public:
    explicit SelfSignedTls(std::string_view answer)
        : answer_(answer)
        , context_(SSL_CTX_new(TLS_server_method()), &SSL_CTX_free)
    {
        const std::unique_ptr<EVP_PKEY, void (*)(EVP_PKEY*)> key(EVP_EC_gen("P-256"), &EVP_PKEY_free);
        const std::unique_ptr<X509, void (*)(X509*)> certificate(X509_new(), &X509_free);
        X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -3600);
        X509_gmtime_adj(X509_getm_notAfter(certificate.get()), 3600);
        X509_set_pubkey(certificate.get(), key.get());
        X509_NAME* const name = X509_get_subject_name(certificate.get());
        X509_NAME_add_entry_by_txt(
            name, "CN", MBSTRING_ASC, reinterpret_cast<const unsigned char*>("localhost"), -1, -1, 0);
        X509_set_issuer_name(certificate.get(), name);
        X509_sign(certificate.get(), key.get(), EVP_sha256());
        SSL_CTX_use_certificate(context_.get(), certificate.get());
        SSL_CTX_use_PrivateKey(context_.get(), key.get());
    }

    /// Serves one client on an open socket; returns when it has its answer or went away.
    void serve(int socket) const
    {
        const std::unique_ptr<SSL, void (*)(SSL*)> connection(SSL_new(context_.get()), &SSL_free);
        SSL_set_fd(connection.get(), socket);
        char request = 0;
        if (SSL_accept(connection.get()) != 1 || SSL_read(connection.get(), &request, 1) != 1)
            return;
        SSL_write(connection.get(), answer_.data(), static_cast<int>(answer_.size()));
        SSL_shutdown(connection.get());
    }

private:
    std::string_view answer_;
    std::unique_ptr<SSL_CTX, void (*)(SSL_CTX*)> context_;
};

} // namespace sonavel::test
