#include "qt/QtWebBrowser.h"

#include "qt/TextConversion.h"

#include <QDesktopServices>
#include <QUrl>

namespace sonavel {

void QtWebBrowser::openAddress(const Text& address)
{
    QDesktopServices::openUrl(QUrl(toQString(address), QUrl::StrictMode));
}

} // namespace sonavel
