// Preference files as anybody might have left them.
#include "adapters/files/PropertyList.h"

#include <cstdint>
#include <cstdlib>

/// What was read must come back the same after it was written, or the program would change what it does not understand.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace sonavel;
    const auto domain = domainFromPropertyList({reinterpret_cast<const char*>(data), size});
    if (domain && domainFromPropertyList(propertyListFromDomain(*domain)) != domain)
        std::abort();
    return 0;
}
