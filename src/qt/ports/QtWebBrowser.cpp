#include "qt/ports/QtWebBrowser.h"

#include "qt/kit/TextConversion.h"

#include <QDesktopServices>
#include <QUrl>

namespace sonavel {

void QtWebBrowser::openAddress(const Text& address)
{
    QDesktopServices::openUrl(QUrl(toQString(address), QUrl::StrictMode));
}

} // namespace sonavel
