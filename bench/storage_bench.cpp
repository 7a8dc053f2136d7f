// Measures loading and writing a station database of 100,000 stations against the plain limit: libcrypto's Base64 and
// AES over the same bytes, and for loading a bytewise sort of the same names.

#include "Ratio.h"
#include "adapters/files/PosixFiles.h"
#include "model/StationList.h"
#include "model/StationListText.h"
#include "storage/Cipher.h"
#include "storage/StationDatabase.h"
#include "storage/StationListCodec.h"

#include <openssl/evp.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

namespace sonavel {
namespace {

constexpr std::size_t stationCount = 100'000;

enum class FileOrder { Sorted, Shuffled };

/// Names of a few words, some with numbers and some beyond ASCII, about 20 bytes long; addresses of about 45.
Text makeListText()
{
    constexpr std::array words = {"Radio", "Classic", "Jazz", "Antenne", "Zürich", "FM", "Música", "Rock", "Gold",
        "Kultur", "Night", "Café", "Lounge", "Sport", "København", "Hits", "News", "Folk", "Ambient", "Ö-Welle",
        "Blues", "Coast", "Dance", "Евро", "City", "Wave", "Public", "Chill"};
    std::mt19937 random(1); // NOLINT(cert-msc*): every run measures the same list
    const auto word = [&] { return std::string(words[random() % words.size()]); };
    std::string text;
    for (std::size_t index = 0; index < stationCount; ++index) {
        text.append(word()).append(" ").append(word()).append(" ").append(word());
        if (index % 3 == 0)
            text.append(" ").append(std::to_string(random() % 1000));
        text.append(";http://stream").append(std::to_string(random() % 90)).append(".example.org:8000/station/");
        text.append(std::to_string(index)).append("\r");
    }
    return text;
}

StationList makeList(FileOrder order)
{
    StationList list;
    list.setListRadio(recordsFromListText(makeListText()));
    if (order == FileOrder::Sorted)
        list.sortingRadioWithKey("radio");
    return list;
}

/// A home folder on disk with the list in its database, gone with the object.
class HomeWithDatabase {
public:
    explicit HomeWithDatabase(const StationList& list)
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "storage_bench.XXXXXX").string();
        path_ = mkdtemp(pattern.data());
        files_ = std::make_unique<PosixFiles>(path_);
        StationDatabase(*files_, list).fileRadioDBupdate();
    }
    HomeWithDatabase(const HomeWithDatabase&) = delete;
    HomeWithDatabase& operator=(const HomeWithDatabase&) = delete;
    ~HomeWithDatabase() { std::filesystem::remove_all(path_); }

    PosixFiles& files() { return *files_; }

private:
    std::string path_;
    std::unique_ptr<PosixFiles> files_;
};

/// What libcrypto alone needs for the bytes of a list, with all memory there beforehand.
class Limit {
public:
    explicit Limit(const StationList& list)
        : plain_(listTextFromRecords(*list.listRadio(), Heading::None))
        , base64_(encodeStationList(plain_).string())
        , buffer_(base64_.size() + 64, '\0')
        , output_(base64_.size() + 64, '\0')
        , key_(cipherKeyFromText(stationDatabasePassphrase))
    {
    }

    int decodeAndDecrypt()
    {
        const int length = EVP_DecodeBlock(bytesOf(buffer_), bytesOf(base64_), static_cast<int>(base64_.size()));
        const int padding = static_cast<int>(std::count(base64_.end() - 2, base64_.end(), '='));
        return runCipher(0, bytesOf(buffer_), length - padding);
    }

    int encryptAndEncode()
    {
        const int length = runCipher(1, bytesOf(plain_), static_cast<int>(plain_.size()));
        return EVP_EncodeBlock(bytesOf(buffer_), bytesOf(output_), length);
    }

private:
    static unsigned char* bytesOf(std::string& text) { return reinterpret_cast<unsigned char*>(text.data()); }

    int runCipher(int direction, const unsigned char* input, int length)
    {
        const std::array<unsigned char, 16> zeroVector{};
        EVP_CIPHER_CTX* const context = EVP_CIPHER_CTX_new();
        int written = 0;
        int finallyWritten = 0;
        EVP_CipherInit_ex(context, EVP_aes_256_cbc(), nullptr, key_.data(), zeroVector.data(), direction);
        EVP_CipherUpdate(context, bytesOf(output_), &written, input, length);
        EVP_CipherFinal_ex(context, bytesOf(output_) + written, &finallyWritten);
        EVP_CIPHER_CTX_free(context);
        return written + finallyWritten;
    }

    std::string plain_;
    std::string base64_;
    std::string buffer_;
    std::string output_;
    CipherKey key_;
};

void loading(benchmark::State& state, FileOrder order)
{
    const StationList list = makeList(order);
    HomeWithDatabase home(list);
    Limit limit(list);
    std::vector<std::string_view> namesInFile;
    for (const auto& record : *list.listRadio())
        namesInFile.push_back(record->radio().view());

    measureAgainst(
        state,
        [&] {
            limit.decodeAndDecrypt();
            std::vector<std::string_view> names = namesInFile;
            std::sort(names.begin(), names.end());
            return names;
        },
        [&] {
            StationList loaded;
            StationDatabase database(home.files(), loaded);
            loaded.setListRadio(recordsFromListText(database.fileRadioDBreadCypted(true)));
            loaded.sortingRadioWithKey("radio");
            return loaded;
        });
}

void writing(benchmark::State& state)
{
    const StationList list = makeList(FileOrder::Sorted);
    Limit limit(list);
    measureAgainst(
        state, [&] { return limit.encryptAndEncode(); },
        [&] { return encodeStationList(listTextFromRecords(*list.listRadio(), Heading::None)); });
}

BENCHMARK_CAPTURE(loading, sorted, FileOrder::Sorted)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(101);
BENCHMARK_CAPTURE(loading, shuffled, FileOrder::Shuffled)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(101);
BENCHMARK(writing)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(101);

} // namespace
} // namespace sonavel

BENCHMARK_MAIN();
