// What the windows say of streams, files and names from outside.
#include "UserInput.h"
#include "platform/StreamPlayer.h"
#include "qt/kit/TextConversion.h"
#include "qt/kit/WrappedText.h"
#include "qt/ports/TranslatedStrings.h"
#include "qt/windows/Messages.h"

#include <QHelpEvent>
#include <QToolTip>

#include <gtest/gtest.h>

#include <algorithm>

namespace sonavel {
namespace {

TEST(NowPlayingLine, SaysWhatTheListenerWantsToKnow)
{
    using State = StreamReport::State;
    using Failure = PlaybackFailure;
    using std::chrono::seconds;
    const struct {
        StreamReport report;
        const char* line;
    } cases[] = {
        {{}, "Not playing"},
        {{State::Connecting, {}, {}, {}}, "Connecting…"},
        {{State::Buffering, "Song", {}, {}}, "Buffering…"},
        {{State::Playing, {}, {}, {}}, "Playing"},
        {{State::Playing, "", {}, {}}, "Playing"},
        {{State::Playing, "Ann & Bob – <i>%li</i>\nLive", {}, {}}, "Ann & Bob – <i>%li</i> Live"},
        {{State::Paused, "Song", {}, {}}, "Song"},
        {{State::Paused, {}, {}, {}}, "Paused"},
        {{State::Reconnecting, "Song", Failure::Ended, seconds(8)}, "Stream ended. Trying again in 8 s"},
        {{State::Reconnecting, {}, Failure::TimedOut, seconds(4)}, "No answer. Trying again in 4 s"},
        {{State::Reconnecting, {}, Failure::TimedOut, seconds(0)}, "No answer. Trying again…"},
        {{State::Reconnecting, {}, Failure::NotFound, seconds(1)}, "404 Not Found. Trying again in 1 s"},
        {{State::Reconnecting, {}, Failure::NotAStream, seconds(1)}, "Not a stream. Trying again in 1 s"},
    };
    for (const auto& [report, line] : cases)
        EXPECT_EQ(nowPlayingText(report).toStdString(), line);
}

TEST(SaveFailures, NameWhatIsNotSavedAndWhy)
{
    const auto why = std::make_error_code(std::errc::no_space_on_device);
    const std::pair<UserFile, const char*> cases[] = {
        {UserFile{UserFile::Kind::StationList, "/home/u/list"},
            "The station list could not be saved: No space left on device"},
        {UserFile{UserFile::Kind::Preferences, "/home/u/list"},
            "The preferences could not be saved: No space left on device"},
        {{UserFile::Kind::Other, "/home/u/radiolist.rdb"}, "A file could not be saved: No space left on device"},
    };
    for (const auto& [file, line] : cases)
        EXPECT_EQ(saveFailureText(file, why).toStdString(), line);
}

TEST(Conversion, NothingFromOutsideBecomesMarkupOrAShortcut)
{
    EXPECT_EQ(escapeMnemonics("R&B"), "R&&B");
    EXPECT_EQ(onOneLine(QStringLiteral("a\nb\r\u2028c")), "a b  c");
    EXPECT_EQ(toQString(Text("\xff"
                             "ok")),
        QStringLiteral("\uFFFDok"));
}

TEST(WrappedText, BreaksWhatIsTooLongAndElidesTheLastLine)
{
    const QFont font;
    const QFontMetrics metrics(font);
    const QString word(100, u'w');
    const int width = metrics.horizontalAdvance(QString(30, u'w'));
    EXPECT_EQ(wrappedLines(QStringLiteral("short"), font, width, 3), QStringList{QStringLiteral("short")});
    EXPECT_EQ(wrappedLines(QString(), font, width, 3).join(u' '), QString());
    EXPECT_EQ(wrappedLines(word, font, width, 9).join(QString()), word);
    const QString longest(4'000, u'w');
    const QString almost = longest.chopped(1);
    for (const auto& [text, shown] :
        {std::pair(longest, longest), {longest + u'w', longest + u'…'}, {almost + QStringLiteral("😀"), almost + u'…'}})
        EXPECT_EQ(wrappedLines(text, font, width, 999).join(QString()), shown) << text.size();
    const QStringList lines = wrappedLines(QStringLiteral("Two words ") + word, font, width, 3);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines.at(0), QStringLiteral("Two words"));
    EXPECT_TRUE(lines.at(2).endsWith(u'…'));
    for (const QString& line : lines)
        EXPECT_LE(metrics.horizontalAdvance(line), width);
}

TEST(WrappedText, AToolTipIsPlainAndNoWiderThanItsWindow)
{
    QWidget window;
    window.setGeometry(0, 0, 260, 100);
    window.show();
    const auto tip = [&](const QString& text) -> const QWidget* {
        showPlainToolTip(QHelpEvent(QEvent::ToolTip, {5, 5}, window.mapToGlobal(QPoint(5, 5))), text, window);
        const QWidgetList all = QApplication::topLevelWidgets();
        const auto shown = std::find_if(all.begin(), all.end(),
            [](const QWidget* widget) { return widget->inherits("QTipLabel") && widget->isVisible(); });
        return shown == all.end() ? nullptr : *shown;
    };
    const QWidget* narrow = tip(QStringLiteral("<b>x</b>"));
    ASSERT_NE(narrow, nullptr);
    EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("&lt;b&gt;x&lt;/b&gt;")));
    const QWidget* wide = tip(QStringLiteral("http://radio.example/") + QString(200, u'w'));
    ASSERT_NE(wide, nullptr);
    EXPECT_LE(wide->width(), window.width());
    EXPECT_GT(wide->height(), 4 * wide->fontMetrics().height());
    tip({});
    EXPECT_TRUE(handleEventsUntil([] { return !QToolTip::isVisible(); }));
}

TEST(Strings, EveryLanguageIsSpokenAnyOtherIsEnglishAndUnknownKeysAreThemselves)
{
    const TranslatedStrings strings{QLocale(QLocale::Icelandic)};
    EXPECT_EQ(strings.localizedStringForKey("BUTTON_YES"), Text("Yes"));
    EXPECT_EQ(strings.localizedStringForKey("NO_SUCH_KEY"), Text("NO_SUCH_KEY"));
    for (const auto& [language, yes] :
        {std::pair("en_GB", "Yes"), {"de_AT", "Ja"}, {"fr", "Oui"}, {"it", "Sì"}, {"es_MX", "Sí"}})
        EXPECT_EQ(TranslatedStrings{QLocale(QString::fromLatin1(language))}.localizedStringForKey("BUTTON_YES"), yes);
}

} // namespace
} // namespace sonavel
