// Runs the tests of the windows without a display.
#include "qt/kit/ApplicationStyle.h"
#include "qt/ports/TranslatedStrings.h"

#include <QApplication>
#include <QFontInfo>

#include <gtest/gtest.h>

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argumentCount, arguments);
    QApplication::setStyle(new sonavel::ApplicationStyle(QStringLiteral("fusion")));
    const sonavel::TranslatedStrings strings{QLocale(QLocale::English)};
    const QString family = QFontInfo(QApplication::font()).family();
    if (const QString wanted = qEnvironmentVariable("SONAVEL_TEST_FONT", family); wanted != family) {
        qCritical("The font %s is not installed; %s came instead.", qPrintable(wanted), qPrintable(family));
        return 1;
    }
    return RUN_ALL_TESTS();
}
