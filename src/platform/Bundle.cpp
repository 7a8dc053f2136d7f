#include "platform/Bundle.h"

namespace sonavel {

Bundle programBundle()
{
    return {"Sonavel", SONAVEL_VERSION, SONAVEL_BUILD};
}

} // namespace sonavel
