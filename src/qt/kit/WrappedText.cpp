#include "qt/kit/WrappedText.h"

#include "qt/kit/TextConversion.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QTextLayout>
#include <QToolTip>
#include <QWidget>

namespace sonavel {

namespace {

constexpr int maxCharactersLaidOut = 4'000; // laying out a very long text takes seconds
constexpr int maxToolTipLines = 20;

QString withoutExcess(const QString& text)
{
    if (text.size() <= maxCharactersLaidOut)
        return text;
    const bool isInsideCharacter = text.at(maxCharactersLaidOut).isLowSurrogate();
    return text.left(maxCharactersLaidOut - (isInsideCharacter ? 1 : 0)) + u'…';
}

} // namespace

QStringList wrappedLines(const QString& text, const QFont& font, int width, int most)
{
    const QString line = onOneLine(withoutExcess(text));
    QTextLayout layout(line, font);
    QTextOption wrapping;
    wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(wrapping);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine part = layout.createLine(); part.isValid() && lines.size() < most; part = layout.createLine()) {
        part.setLineWidth(width);
        const bool isLast = lines.size() == most - 1;
        lines << (isLast ? QFontMetrics(font).elidedText(line.mid(part.textStart()), Qt::ElideRight, width)
                         : line.mid(part.textStart(), part.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

void showPlainToolTip(const QHelpEvent& event, const QString& text, QWidget& widget)
{
    const QFont font = QToolTip::font();
    const int besideText = QFontMetrics(font).height();
    const QStringList lines = wrappedLines(text, font, widget.window()->width() - besideText, maxToolTipLines);
    const QString escaped = lines.join(u'\n').toHtmlEscaped();
    QToolTip::showText(event.globalPos(),
        escaped.isEmpty() ? escaped : QStringLiteral("<p style='white-space:pre'>%1</p>").arg(escaped), &widget);
}

} // namespace sonavel
