#include "tools/ListArguments.h"

#include "platform/Bundle.h"

#include <getopt.h>

#include <array>
#include <cstdlib>
#include <iostream>
#include <string_view>
#include <vector>

namespace sonavel {

namespace {

constexpr const char* help =
    "Usage: sonavel-list show [FILE]\n"
    "       sonavel-list check [FILE]\n"
    "       sonavel-list convert IN OUT\n"
    "Shows, checks and converts lists of radio stations. Without FILE it is the list of the player.\n\n"
    "  show      print names and addresses, in columns or, into a pipe, separated by tabs\n"
    "  check     print what is wrong with the list, line by line\n"
    "  convert   write the list of IN to OUT\n\n"
    "  --from FORMAT   read FILE or IN as csv, rdb, json, m3u or pls, whatever its name\n"
    "  --to FORMAT     write OUT as csv, rdb or json, whatever its name\n"
    "  --version       print the version\n"
    "  --help          print this\n\n"
    "\"-\" stands for standard input and output. The format is told by the extension, and that of an input\n"
    "without one by its content.\n\n"
    "Exit status: 0 fine, 1 the list has findings, 2 wrong usage, 3 a file cannot be read or written.\n"
    "Variables: SONAVEL_HOME, else HOME, is the folder below which the player keeps its list.\n";

[[noreturn]] void refuse(const std::string& why)
{
    std::cerr << "sonavel-list: " << why << "; see sonavel-list --help\n";
    std::exit(usageError);
}

std::string pathOfOwnList()
{
    for (const char* variable : {"SONAVEL_HOME", "HOME"})
        if (const char* home = std::getenv(variable); home != nullptr && *home != '\0')
            return std::string(home) + "/Library/Preferences/radiolist.rdb";
    refuse("neither SONAVEL_HOME nor HOME tells where the player's list is");
}

ListFormat formatFrom(std::string_view name)
{
    const auto format = formatNamed(name);
    if (!format)
        refuse("there is no format \"" + std::string(name) + "\"");
    return *format;
}

struct Options {
    std::optional<ListFormat> from;
    std::optional<ListFormat> to;
    std::vector<std::string> operands;
};

Options optionsFrom(int argc, char** argv)
{
    constexpr std::array known{
        option{"from", required_argument, nullptr, 'f'},
        option{"to", required_argument, nullptr, 't'},
        option{"version", no_argument, nullptr, 'V'},
        option{"help", no_argument, nullptr, 'h'},
        option{},
    };
    Options options;
    for (int found = 0; (found = getopt_long(argc, argv, "", known.data(), nullptr)) != -1;) {
        switch (found) {
        case 'f':
            options.from = formatFrom(optarg);
            break;
        case 't':
            options.to = formatFrom(optarg);
            break;
        case 'V':
            std::cout << "sonavel-list " << programBundle().shortVersion.view() << '\n';
            std::exit(EXIT_SUCCESS);
        case 'h':
            std::cout << help;
            std::exit(EXIT_SUCCESS);
        default:
            std::exit(usageError);
        }
    }
    options.operands.assign(argv + optind, argv + argc);
    return options;
}

void setInput(ListArguments& arguments, const Options& options, std::string path)
{
    arguments.inputFormat = options.from ? options.from : formatOfPath(path);
    arguments.input = std::move(path);
}

void setOutput(ListArguments& arguments, const Options& options, std::string path)
{
    const auto format = options.to ? options.to : formatOfPath(path);
    if (!format)
        refuse("--to has to tell the format of \"" + path + "\"");
    if (!isWritable(*format))
        refuse("playlists are read and not written");
    arguments.outputFormat = *format;
    arguments.output = std::move(path);
}

ListArguments::Command commandNamed(std::string_view name)
{
    using Command = ListArguments::Command;
    if (name == "show")
        return Command::Show;
    if (name == "check")
        return Command::Check;
    if (name == "convert")
        return Command::Convert;
    refuse("there is no command \"" + std::string(name) + "\"");
}

} // namespace

ListArguments listArgumentsFrom(int argc, char** argv)
{
    const Options options = optionsFrom(argc, argv);
    const auto& operands = options.operands;
    if (operands.empty())
        refuse("it takes a command: show, check or convert");
    ListArguments arguments;
    arguments.command = commandNamed(operands[0]);
    if (arguments.command == ListArguments::Command::Convert) {
        if (operands.size() != 3)
            refuse("convert takes two files");
        setInput(arguments, options, operands[1]);
        setOutput(arguments, options, operands[2]);
        return arguments;
    }
    if (operands.size() > 2)
        refuse(operands[0] + " takes one file");
    if (options.to)
        refuse("--to goes with convert alone");
    setInput(arguments, options, operands.size() == 2 ? operands[1] : pathOfOwnList());
    return arguments;
}

} // namespace sonavel
