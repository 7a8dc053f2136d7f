// The address of a server in the form that the client of the tests takes.
#pragma once

#include "server/DataServer.h"

#include <string>

namespace sonavel::test {

/// The base address without its closing "/".
inline std::string hostOf(const DataServer& server)
{
    std::string host = server.baseAddress().string();
    host.pop_back();
    return host;
}

} // namespace sonavel::test
