// Runs a fuzz function over its seeds and over random mutations of them, in builds without libFuzzer.
//
// Options as libFuzzer has them: -runs=N (mutated inputs), -seed=N, then files and folders with seeds. An input that
// ends the program is left in the file "failed-input" of the working folder.

#include <algorithm>
#include <array>
#include <charconv>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

std::string currentInput; // NOLINT: a signal handler has no other way to reach it

void saveInputAndEnd(int signal)
{
    std::ofstream("failed-input", std::ios::binary) << currentInput;
    std::cerr << "The input is in the file failed-input.\n";
    (void)std::signal(signal, SIG_DFL);
    (void)std::raise(signal);
}

void run(std::string input)
{
    currentInput = std::move(input);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(currentInput.data()), currentInput.size());
}

void addSeeds(const std::filesystem::path& path, std::vector<std::string>& seeds)
{
    std::vector<std::filesystem::path> files;
    if (std::filesystem::is_directory(path))
        files.assign(std::filesystem::directory_iterator(path), {});
    else
        files.push_back(path);
    std::sort(files.begin(), files.end());
    for (const auto& file : files) {
        std::ifstream stream(file, std::ios::binary);
        seeds.emplace_back(std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>());
    }
}

/// Changes inputs by chance, the same way for the same seed.
class Mutator {
public:
    Mutator(std::uint64_t seed, const std::vector<std::string>& seeds)
        : random_(seed)
        , seeds_(seeds)
    {
    }

    std::string next()
    {
        std::string input = seeds_[below(seeds_.size())];
        for (std::size_t changes = 1 + below(8); changes > 0; --changes)
            change(input);
        return input;
    }

private:
    std::size_t below(std::size_t bound) { return static_cast<std::size_t>(random_() % bound); }
    char anyByte() { return static_cast<char>(below(256)); }
    std::size_t placeIn(const std::string& input) { return below(input.size() + 1); }

    void change(std::string& input)
    {
        const std::size_t place = placeIn(input);
        const std::size_t length = 1 + below(16);
        switch (below(6)) {
        case 0:
            input.insert(place, length, anyByte());
            break;
        case 1:
            input.erase(place, length);
            break;
        case 2:
            if (place < input.size())
                input[place] = anyByte();
            break;
        case 3:
            if (place < input.size())
                input[place] = static_cast<char>(input[place] ^ (1 << below(8)));
            break;
        case 4:
            input.insert(place, std::string(input, placeIn(input), length));
            break;
        default:
            const std::string& other = seeds_[below(seeds_.size())];
            input.replace(place, length, other, placeIn(other), length * 4);
        }
    }

    std::mt19937_64 random_;
    const std::vector<std::string>& seeds_;
};

/// Reads the number of an option "-name=number"; false when `argument` is not that option.
bool readOption(std::string_view argument, std::string_view name, std::uint64_t& number)
{
    if (!argument.starts_with(name))
        return false;
    const char* const end = argument.data() + argument.size();
    return std::from_chars(argument.data() + name.size(), end, number).ptr == end;
}

} // namespace

int main(int argumentCount, char** arguments)
{
    std::uint64_t runs = 0;
    std::uint64_t seed = 1;
    std::vector<std::string> seeds = {""};
    for (int index = 1; index < argumentCount; ++index)
        if (!readOption(arguments[index], "-runs=", runs) && !readOption(arguments[index], "-seed=", seed))
            addSeeds(arguments[index], seeds);

    for (const int signal : std::array{SIGABRT, SIGSEGV, SIGFPE, SIGBUS})
        (void)std::signal(signal, saveInputAndEnd);
    for (const std::string& input : seeds)
        run(input);
    Mutator mutator(seed, seeds);
    for (std::uint64_t count = 0; count < runs; ++count)
        run(mutator.next());
    std::cout << seeds.size() << " seeds and " << runs << " mutations of them\n";
    return 0;
}
