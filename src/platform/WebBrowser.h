// The user's web browser.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"

namespace sonavel {

class WebBrowser : private NonCopyable {
public:
    virtual ~WebBrowser() = default;

    /// Opens a complete http or https address and returns at once; whether the browser shows it is not known.
    virtual void openAddress(const Text& address) = 0;
};

} // namespace sonavel
