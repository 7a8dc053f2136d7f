// Fuzzes the Base64 and AES operations on station data.

#include "Require.h"
#include "storage/AESCrypt.h"
#include "storage/StationListCodec.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace sonavel {
namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// Decodes one bit after the other: slow, and plain enough to be seen to be right.
std::string decodedBitByBit(std::string_view text)
{
    for (const char character : text)
        if (static_cast<unsigned char>(character) >= 0x80)
            return {};
    const bool isPadded = text.find('=') != std::string_view::npos;
    std::string bits;
    for (const char character : text.substr(0, text.find('='))) {
        const std::size_t value = alphabet.find(character);
        for (int bit = 5; bit >= 0 && value != std::string_view::npos; --bit)
            bits += (value >> bit & 1U) != 0 ? '1' : '0';
    }
    // Without "=" only whole groups count.
    bits.resize(bits.size() / (isPadded ? 8 : 24) * (isPadded ? 8 : 24));
    std::string bytes;
    for (std::size_t index = 0; index < bits.size(); index += 8)
        bytes += static_cast<char>(std::stoi(bits.substr(index, 8), nullptr, 2));
    return bytes;
}

void checkBase64(const Text& input, std::uint64_t lineLength)
{
    require(initWithBase64EncodedString(input).content == decodedBitByBit(input.view()), "decoding follows its rules");

    const Bytes bytes{input.string()};
    const Text lines = base64EncodingWithLineLength(bytes, lineLength);
    const Text oneLine = base64Encoding(bytes);
    require(
        oneLine.view().size() == (bytes.content.size() + 2) / 3 * 4, "one line has four characters for three bytes");
    require(oneLine.view().find('\n') == std::string_view::npos, "one line is one line");
    require(initWithBase64EncodedString(oneLine) == bytes, "one line decodes to what was encoded");
    require(initWithBase64EncodedString(lines) == bytes, "many lines decode to what was encoded");
    for (std::size_t start = 0, end = 0; (end = lines.view().find('\n', start)) != std::string_view::npos;
         start = end + 1)
        require(
            lineLength > 0 && end - start >= lineLength && end - start < lineLength + 4, "lines are of their length");
}

void checkCipher(const Text& input, const Text& key)
{
    const Bytes bytes{input.string()};
    const auto cipherText = AES256EncryptWithKey(bytes, key);
    require(cipherText && cipherText->content.size() == (bytes.content.size() / 16 + 1) * 16, "padding fills a block");
    require(AES256DecryptWithKey(*cipherText, key) == bytes, "decryption reverses encryption");

    if (const auto anything = AES256DecryptWithKey(bytes, key))
        require(anything->content.size() < bytes.content.size(), "decryption takes padding off");

    const Text readAgain = AES256DecryptWithKey(AES256EncryptWithKey(input, key), key);
    require(
        isValidUtf8(input.view()) ? readAgain == input : readAgain.isAbsent(), "texts come back, other bytes do not");
    const Text anyText = AES256DecryptWithKey(input, key);
    require(isValidUtf8(anyText.view()), "only texts are decrypted to texts");
}

} // namespace
} // namespace sonavel

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sonavel;
    const Text input(std::string(reinterpret_cast<const char*>(data), size));
    checkBase64(input, size == 0 ? 0 : data[0]);
    checkCipher(input, stationDatabasePassphrase);
    checkCipher(input, input);
    return 0;
}
