// The program's texts in the user's language.
#pragma once

#include "platform/LocalizedStrings.h"

#include <QLocale>
#include <QTranslator>

namespace sonavel {

/// Installs itself as a translator of the application, for the windows' own texts too. English where the language has
/// no table; a missing key shows itself.
class TranslatedStrings : public LocalizedStrings {
public:
    explicit TranslatedStrings(const QLocale& locale);
    ~TranslatedStrings() override;

    [[nodiscard]] Text localizedStringForKey(std::string_view key) const override;

private:
    QTranslator table_;
};

} // namespace sonavel
