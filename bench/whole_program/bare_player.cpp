// The reference for sound: libmpv with its defaults. Loads the address in the first argument when a line comes in, and
// plays until its input ends.

#include <mpv/client.h>

#include <clocale>
#include <cstdlib>
#include <iostream>
#include <string>

int main(int argc, char** argv)
{
    std::setlocale(LC_NUMERIC, "C");
    mpv_handle* player = argc == 2 ? mpv_create() : nullptr;
    if (player == nullptr || mpv_set_option_string(player, "vid", "no") < 0 || mpv_initialize(player) < 0)
        return EXIT_FAILURE;
    std::cout << "ready" << std::endl;

    std::string line;
    std::getline(std::cin, line);
    const char* command[] = {"loadfile", argv[1], nullptr};
    mpv_command(player, command);
    std::getline(std::cin, line);
    mpv_terminate_destroy(player);
    return EXIT_SUCCESS;
}
