// Runs the tests of the windows without a display.
#include "qt/ports/TranslatedStrings.h"

#include <QApplication>
#include <QStyleFactory>

#include <gtest/gtest.h>

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication application(argumentCount, arguments);
    const sonavel::TranslatedStrings strings{QLocale(QLocale::English)};
    return RUN_ALL_TESTS();
}
