#include "tools/ListArguments.h"

#include "platform/Bundle.h"
#include "tools/DatabaseFormat.h"

#include <getopt.h>

#include <array>
#include <cstdlib>
#include <iostream>
#include <string_view>
#include <vector>

namespace sonavel {

namespace {

/// Such as "a, b or c", of those formats for which `isListed`.
template <class Predicate> std::string formatNames(Predicate isListed)
{
    std::string names;
    std::size_t last = 0;
    for (const ListFormat* format : allFormats) {
        if (!isListed(*format))
            continue;
        last = names.size();
        names.append(names.empty() ? "" : ", ").append(format->names.front());
    }
    return names.replace(last, 2, " or ");
}

std::string help()
{
    return "Usage: sonavel-list show [FILE]\n"
           "       sonavel-list check [FILE]\n"
           "       sonavel-list convert IN OUT\n"
           "Shows, checks and converts lists of radio stations. Without FILE it is the list of the player.\n\n"
           "  show      print names and addresses, in columns or, into a pipe, separated by tabs\n"
           "  check     print what is wrong with the list, line by line\n"
           "  convert   write the list of IN to OUT\n\n"
           "  --from FORMAT   read FILE or IN as "
        + formatNames([](const ListFormat&) { return true; })
        + ", whatever its name\n"
          "  --to FORMAT     write OUT as "
        + formatNames([](const ListFormat& format) { return format.serialize != nullptr; })
        + ", whatever its name\n"
          "  --version       print the version\n"
          "  --help          print this\n\n"
          "\"-\" stands for standard input and output. The extension decides on the format; that of an input\n"
          "without one is recognised by its content.\n\n"
          "Exit status: 0 fine, 1 the list has findings, 2 wrong usage, 3 a file cannot be read or written.\n"
          "Variables: SONAVEL_HOME, else HOME, is the folder below which the player keeps its list.\n";
}

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
    refuse("neither SONAVEL_HOME nor HOME says where the player's list is");
}

const ListFormat* formatFrom(std::string_view name)
{
    const ListFormat* format = formatNamed(name, allFormats);
    if (format == nullptr)
        refuse("there is no format \"" + std::string(name) + "\"");
    return format;
}

/// Sets the formats that options give; returns the other arguments.
std::vector<std::string> takeOptions(int argc, char** argv, ListArguments& arguments)
{
    constexpr std::array known{
        option{"from", required_argument, nullptr, 'f'},
        option{"to", required_argument, nullptr, 't'},
        option{"version", no_argument, nullptr, 'V'},
        option{"help", no_argument, nullptr, 'h'},
        option{},
    };
    for (int found = 0; (found = getopt_long(argc, argv, "", known.data(), nullptr)) != -1;) {
        switch (found) {
        case 'f':
            arguments.inputFormat = formatFrom(optarg);
            break;
        case 't':
            arguments.outputFormat = formatFrom(optarg);
            break;
        case 'V':
            std::cout << "sonavel-list " << programBundle().shortVersion.view() << '\n';
            std::exit(EXIT_SUCCESS);
        case 'h':
            std::cout << help();
            std::exit(EXIT_SUCCESS);
        default:
            std::exit(usageError);
        }
    }
    return {argv + optind, argv + argc};
}

void setInput(ListArguments& arguments, const std::string& path)
{
    arguments.input = path;
    if (arguments.inputFormat == nullptr)
        arguments.inputFormat = formatOfPath(path, allFormats);
}

void setOutput(ListArguments& arguments, const std::string& path)
{
    arguments.output = path;
    if (arguments.outputFormat == nullptr)
        arguments.outputFormat = formatOfPath(path, allFormats);
    if (arguments.outputFormat == nullptr)
        refuse("the format of \"" + path + "\" has to be given with --to");
    if (arguments.outputFormat->serialize == nullptr)
        refuse("playlists are read and not written");
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
    ListArguments arguments;
    const auto operands = takeOptions(argc, argv, arguments);
    if (operands.empty())
        refuse("it takes a command: show, check or convert");
    arguments.command = commandNamed(operands[0]);
    if (arguments.command == ListArguments::Command::Convert) {
        if (operands.size() != 3)
            refuse("convert takes two files");
        setInput(arguments, operands[1]);
        setOutput(arguments, operands[2]);
        return arguments;
    }
    if (operands.size() > 2)
        refuse(operands[0] + " takes one file");
    if (arguments.outputFormat != nullptr)
        refuse("--to goes with convert alone");
    setInput(arguments, operands.size() == 2 ? operands[1] : pathOfOwnList());
    return arguments;
}

} // namespace sonavel
