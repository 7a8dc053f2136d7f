// Between the program's texts and Qt's.
#pragma once

#include "base/Text.h"
#include "platform/LocalizedStrings.h"

#include <QString>

namespace sonavel {

/// An absent text becomes a null string. Bytes that are no UTF-8 become replacement characters.
[[nodiscard]] inline QString toQString(const Text& text)
{
    if (text.isAbsent())
        return {};
    const std::string_view bytes = text.view();
    return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

/// A null string becomes the empty text, never the absent one.
[[nodiscard]] inline Text toText(const QString& string)
{
    return {string.toStdString()};
}

/// The translated text of `key` with `value` in the place of its "%@".
[[nodiscard]] inline QString filledIn(const char* key, const QString& value)
{
    return toQString(filledIn(toText(qtTrId(key)), toText(value)));
}

/// On one line: a line feed or another break in a name from outside is drawn as a blank.
[[nodiscard]] inline QString onOneLine(QString string)
{
    for (QChar& character : string) {
        if (character == u'\n' || character == u'\r' || character == QChar::LineSeparator
            || character == QChar::ParagraphSeparator)
            character = u' ';
    }
    return string;
}

/// For places where Qt takes "&" for the mark of a shortcut.
[[nodiscard]] inline QString escapeMnemonics(QString string)
{
    return string.replace(u'&', QStringLiteral("&&"));
}

} // namespace sonavel
