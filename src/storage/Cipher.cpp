#include "storage/Cipher.h"

#include <openssl/evp.h>

#include <algorithm>
#include <limits>
#include <memory>

namespace sonavel {

namespace {

constexpr std::size_t blockSize = 16;

struct ContextDeleter {
    void operator()(EVP_CIPHER_CTX* context) const { EVP_CIPHER_CTX_free(context); }
};

enum class Direction { Decrypt = 0, Encrypt = 1 };

/// Runs the cipher over the first `length` bytes of the buffer and shrinks the buffer to the result.
std::optional<Bytes> transformed(Bytes bytes, std::size_t length, const CipherKey& key, Direction direction)
{
    if (length > static_cast<std::size_t>(std::numeric_limits<int>::max()) - blockSize)
        return std::nullopt;
    const std::unique_ptr<EVP_CIPHER_CTX, ContextDeleter> context(EVP_CIPHER_CTX_new());
    const std::array<unsigned char, blockSize> zeroVector{};
    auto* const buffer = reinterpret_cast<unsigned char*>(bytes.content.data());
    int written = 0;
    int finallyWritten = 0;
    if (context == nullptr
        || EVP_CipherInit_ex(
               context.get(), EVP_aes_256_cbc(), nullptr, key.data(), zeroVector.data(), static_cast<int>(direction))
            != 1
        || EVP_CipherUpdate(context.get(), buffer, &written, buffer, static_cast<int>(length)) != 1
        || EVP_CipherFinal_ex(context.get(), buffer + written, &finallyWritten) != 1)
        return std::nullopt;
    bytes.content.resize(static_cast<std::size_t>(written) + static_cast<std::size_t>(finallyWritten));
    return bytes;
}

} // namespace

CipherKey cipherKeyFromText(std::string_view keyText)
{
    CipherKey key{};
    std::copy_n(keyText.data(), std::min(keyText.size(), key.size()), key.data());
    return key;
}

std::optional<Bytes> encrypted(Bytes plain, const CipherKey& key)
{
    const std::size_t length = plain.content.size();
    plain.content.resize(length + blockSize);
    return transformed(std::move(plain), length, key, Direction::Encrypt);
}

std::optional<Bytes> decrypted(Bytes cipherText, const CipherKey& key)
{
    const std::size_t length = cipherText.content.size();
    if (length % blockSize != 0)
        return std::nullopt;
    return transformed(std::move(cipherText), length, key, Direction::Decrypt);
}

} // namespace sonavel
