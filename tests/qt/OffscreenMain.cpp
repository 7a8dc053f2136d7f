// Runs the tests of the windows without a display.
#include "qt/kit/HouseStyle.h"
#include "qt/ports/TranslatedStrings.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argumentCount, arguments);
    QApplication::setStyle(new sonavel::HouseStyle(QStringLiteral("fusion")));
    const sonavel::TranslatedStrings strings{QLocale(QLocale::English)};
    return RUN_ALL_TESTS();
}
