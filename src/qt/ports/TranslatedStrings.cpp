#include "qt/ports/TranslatedStrings.h"

#include "qt/kit/TextConversion.h"

#include <QCoreApplication>
#include <QLibraryInfo>

namespace sonavel {

TranslatedStrings::TranslatedStrings(const QLocale& locale)
{
    const QString folder = QStringLiteral(":/translations");
    if (!table_.load(locale, QStringLiteral("sonavel"), QStringLiteral("_"), folder)
        && !table_.load(QStringLiteral("sonavel_en"), folder))
        qFatal("The table of English texts is missing");
    QCoreApplication::installTranslator(&table_);
    if (toolkitTable_.load(
            QStringLiteral("qtbase_") + table_.language(), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkitTable_);
}

TranslatedStrings::~TranslatedStrings()
{
    QCoreApplication::removeTranslator(&table_);
    QCoreApplication::removeTranslator(&toolkitTable_);
}

Text TranslatedStrings::localizedStringForKey(std::string_view key) const
{
    return toText(qtTrId(std::string(key).c_str()));
}

} // namespace sonavel
