// What the windows say of streams, files and names from outside.
#include "adapters/NowPlaying.h"
#include "qt/SaveFailure.h"
#include "qt/kit/TextConversion.h"
#include "qt/ports/TranslatedStrings.h"
#include "qt/windows/NowPlayingText.h"

#include <gtest/gtest.h>

namespace sonavel {
namespace {

TEST(NowPlayingLine, SaysWhatTheListenerWantsToKnow)
{
    using State = NowPlaying::State;
    using Failure = PlaybackFailure;
    using std::chrono::seconds;
    const struct {
        NowPlaying nowPlaying;
        const char* line;
    } cases[] = {
        {{}, "Not playing"},
        {{State::Connecting, {}, {}, {}}, "Connecting…"},
        {{State::Buffering, "Song", {}, {}}, "Buffering…"},
        {{State::Playing, {}, {}, {}}, "Playing"},
        {{State::Playing, "", {}, {}}, "Playing"},
        {{State::Playing, "Ann & Bob – <i>%li</i>\nLive", {}, {}}, "Ann & Bob – <i>%li</i> Live"},
        {{State::Held, "Song", {}, {}}, "Song"},
        {{State::Held, {}, {}, {}}, "Paused"},
        {{State::Reconnecting, "Song", Failure::Ended, seconds(8)}, "Stream ended. Trying again in 8 s"},
        {{State::Reconnecting, {}, Failure::TimedOut, seconds(4)}, "No answer. Trying again in 4 s"},
        {{State::Reconnecting, {}, Failure::TimedOut, seconds(0)}, "No answer. Trying again…"},
        {{State::Reconnecting, {}, Failure::NotFound, seconds(1)}, "404 Not Found. Trying again in 1 s"},
        {{State::Reconnecting, {}, Failure::NotAStream, seconds(1)}, "Not a stream. Trying again in 1 s"},
    };
    for (const auto& [nowPlaying, line] : cases)
        EXPECT_EQ(nowPlayingText(nowPlaying).toStdString(), line);
}

TEST(NowPlayingLine, EveryFailureHasWords)
{
    for (int failure = 0; failure <= static_cast<int>(PlaybackFailure::EngineFailed); ++failure) {
        NowPlaying broken;
        broken.state = NowPlaying::State::Reconnecting;
        broken.failure = static_cast<PlaybackFailure>(failure);
        EXPECT_FALSE(nowPlayingText(broken).contains("FAILURE_")) << failure;
    }
}

TEST(SaveFailures, NameWhatIsNotSavedAndWhy)
{
    const Text why("No space left on device");
    const std::pair<const char*, const char*> cases[] = {
        {"/home/u/Library/Preferences/radiolist.rdb", "The station list could not be saved: No space left on device"},
        {"/home/u/Library/Preferences/Any.plist", "The preferences could not be saved: No space left on device"},
        {"/home/u/Library", "A file could not be saved: No space left on device"},
    };
    for (const auto& [path, line] : cases)
        EXPECT_EQ(saveFailureText(path, why).toStdString(), line);
}

TEST(Conversion, NothingFromOutsideBecomesMarkupOrAShortcut)
{
    EXPECT_EQ(asPlainToolTip("<img src=x> & Co"), "<qt>&lt;img src=x&gt; &amp; Co</qt>");
    EXPECT_EQ(asPlainToolTip({}), "");
    EXPECT_EQ(withoutMnemonics("R&B"), "R&&B");
    EXPECT_EQ(onOneLine(QStringLiteral("a\nb\r\u2028c")), "a b  c");
    EXPECT_EQ(toQString(Text("\xff"
                             "ok")),
        QStringLiteral("\uFFFDok"));
}

TEST(Strings, UnknownLanguagesReadEnglishAndUnknownKeysThemselves)
{
    const TranslatedStrings strings{QLocale(QLocale::Icelandic)};
    EXPECT_EQ(strings.localizedStringForKey("BUTTON_YES"), Text("Yes"));
    EXPECT_EQ(strings.localizedStringForKey("NO_SUCH_KEY"), Text("NO_SUCH_KEY"));
}

TEST(Strings, EveryLanguageIsSpoken)
{
    for (const auto& [language, yes] :
        {std::pair("en_GB", "Yes"), {"de_AT", "Ja"}, {"fr", "Oui"}, {"it", "Sì"}, {"es_MX", "Sí"}}) {
        const TranslatedStrings strings{QLocale(QString::fromLatin1(language))};
        EXPECT_EQ(strings.localizedStringForKey("BUTTON_YES"), Text(yes)) << language;
    }
}

} // namespace
} // namespace sonavel
