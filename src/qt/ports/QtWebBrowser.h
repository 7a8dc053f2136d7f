// The browser that the desktop opens web addresses with.
#pragma once

#include "platform/WebBrowser.h"

namespace sonavel {

class QtWebBrowser : public WebBrowser {
public:
    void openAddress(const Text& address) override;
};

} // namespace sonavel
