#include "storage/AESCrypt.h"

#include "storage/Base64.h"
#include "storage/Cipher.h"

#include <string_view>

namespace sonavel {

std::optional<Bytes> AES256EncryptWithKey(Bytes bytes, const Text& key)
{
    return encrypted(std::move(bytes), cipherKeyFromText(key.view()));
}

std::optional<Bytes> AES256DecryptWithKey(Bytes bytes, const Text& key)
{
    return decrypted(std::move(bytes), cipherKeyFromText(key.view()));
}

Text AES256EncryptWithKey(const Text& text, const Text& key)
{
    const auto bytes = AES256EncryptWithKey(Bytes{text.string()}, key);
    return bytes ? base64Encoding(*bytes) : Text();
}

Text AES256DecryptWithKey(const Text& base64, const Text& key)
{
    auto bytes = AES256DecryptWithKey(dataWithBase64EncodedString(base64), key);
    if (!bytes || !isValidUtf8(bytes->content))
        return {};
    return std::move(bytes->content);
}

Bytes initWithBase64EncodedString(const Text& base64)
{
    return {base64Decoded(base64.view())};
}

Bytes dataWithBase64EncodedString(const Text& base64)
{
    return initWithBase64EncodedString(base64);
}

Text base64Encoding(const Bytes& bytes)
{
    return base64EncodingWithLineLength(bytes, 0);
}

Text base64EncodingWithLineLength(const Bytes& bytes, std::uint64_t lineLength)
{
    return base64Encoded(bytes.content, lineLength);
}

bool hasPrefixBytes(const Bytes& bytes, const void* part, std::size_t length)
{
    if (part == nullptr || length == 0)
        return false;
    return bytes.content.starts_with(std::string_view(static_cast<const char*>(part), length));
}

bool hasSuffixBytes(const Bytes& bytes, const void* part, std::size_t length)
{
    if (part == nullptr || length == 0)
        return false;
    return bytes.content.ends_with(std::string_view(static_cast<const char*>(part), length));
}

} // namespace sonavel
