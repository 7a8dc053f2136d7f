// The program's texts in the user's language.
#pragma once

#include "platform/LocalizedStrings.h"

#include <QLocale>
#include <QTranslator>

namespace sonavel {

/// Installs itself as a translator of the application, for the windows' own texts too. English where the language has
/// no table; a missing key shows itself. What the toolkit says by itself, as in its file panels, is in the same
/// language where its tables are installed.
class TranslatedStrings : public LocalizedStrings {
public:
    explicit TranslatedStrings(const QLocale& locale);
    ~TranslatedStrings() override;

    [[nodiscard]] Text localizedStringForKey(std::string_view key) const override;

private:
    QTranslator table_;
    QTranslator toolkitTable_;
};

} // namespace sonavel
