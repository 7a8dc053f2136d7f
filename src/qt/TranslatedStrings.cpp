#include "qt/TranslatedStrings.h"

#include "qt/TextConversion.h"

#include <QCoreApplication>

namespace sonavel {

TranslatedStrings::TranslatedStrings(const QLocale& locale)
{
    const QString folder = QStringLiteral(":/translations");
    if (!table_.load(locale, QStringLiteral("sonavel"), QStringLiteral("_"), folder)
        && !table_.load(QStringLiteral("sonavel_en"), folder))
        qFatal("The table of English texts is missing");
    QCoreApplication::installTranslator(&table_);
}

TranslatedStrings::~TranslatedStrings()
{
    QCoreApplication::removeTranslator(&table_);
}

Text TranslatedStrings::localizedStringForKey(std::string_view key) const
{
    return toText(qtTrId(std::string(key).c_str()));
}

} // namespace sonavel
