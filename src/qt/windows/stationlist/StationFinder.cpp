#include "qt/windows/stationlist/StationFinder.h"

#include "model/KVStationWebRadio.h"

#include <QList>

#include <algorithm>
#include <array>
#include <utility>

namespace sonavel {

namespace {

/// Letters whose stroke or ligature is no accent to Unicode, but to those who search.
QString withoutStrokes(const QString& character)
{
    constexpr std::array<std::pair<char16_t, const char*>, 8> pairs{
        {{u'ø', "o"}, {u'đ', "d"}, {u'ł', "l"}, {u'ħ', "h"}, {u'ŧ', "t"}, {u'ı', "i"}, {u'æ', "ae"}, {u'œ', "oe"}}};
    for (const auto& [letter, plain] : pairs) {
        if (character == letter)
            return QString::fromLatin1(plain);
    }
    return character;
}

std::string fold(char32_t character)
{
    const QString decomposed = QString::fromUcs4(&character, 1).normalized(QString::NormalizationForm_KD);
    QString kept;
    for (const char32_t part : decomposed.toUcs4()) {
        if (!QChar::isMark(part))
            kept += QChar::fromUcs4(part);
    }
    return withoutStrokes(kept.toCaseFolded()).toStdString();
}

} // namespace

StationFinder::StationFinder(const TableView& table)
    : table_(table)
    , folding_(fold)
{
}

std::optional<long> StationFinder::find(const QString& wanted, long start, Direction direction)
{
    wanted_ = folding_.folded(wanted.toStdString());
    const long rows = table_.numberOfRows();
    const long step = direction == Direction::Forward ? 1 : rows - 1;
    long row = std::clamp(start, 0L, std::max(0L, rows - 1));
    for (long looked = 0; looked < rows; ++looked, row = (row + step) % rows) {
        if (matches(row))
            return row;
    }
    return std::nullopt;
}

bool StationFinder::matches(long row)
{
    constexpr std::array columns{radioKey, linkKey};
    return std::any_of(columns.begin(), columns.end(), [&](std::string_view column) {
        const Text text = table_.textOfCell(column, row);
        return folding_.folded(text.view()).find(wanted_) != std::string_view::npos;
    });
}

} // namespace sonavel
