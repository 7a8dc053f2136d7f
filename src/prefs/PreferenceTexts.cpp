#include "prefs/PreferenceTexts.h"

#include "base/Numbers.h"
#include "prefs/PreferenceFields.h"

#include <cmath>
#include <limits>
#include <string_view>
#include <tuple>

namespace sonavel {

namespace {

/// How values of one type are written as text and read back.
template <class Value> struct TextForm {
    Text (*write)(const Value&);
    Value (*read)(const Text&);
};

template <class Value> struct Preference {
    std::string_view key;
    Value PreferenceFields::*field;
    TextForm<Value> form;
    Value startValue;
};

Text writeFlag(const bool& flag)
{
    return flag ? "YES" : "NO";
}

Text writeStation(const Text& name)
{
    return name.isAbsent() ? Text(selectRadioKey) : name;
}

Text readStation(const Text& text)
{
    return text;
}

Text writeReal(const float& number)
{
    return sixDecimalsText(number);
}

/// Through a double, as volumes are rounded.
float readVolume(const Text& text)
{
    const double volume = doubleValue(text);
    return std::fabs(volume) <= std::numeric_limits<float>::max() ? static_cast<float>(volume) : 0.0F;
}

Text writeInteger(const std::int64_t& number)
{
    return decimalText(number);
}

Text writeMoment(const std::optional<Moment>& moment)
{
    return moment ? internationalForm(*moment) : "(null)";
}

constexpr TextForm<bool> flag{writeFlag, boolValue};
constexpr TextForm<Text> station{writeStation, readStation};
constexpr TextForm<float> volume{writeReal, readVolume};
constexpr TextForm<float> seconds{writeReal, floatValue};
constexpr TextForm<std::int64_t> integer{writeInteger, integerValue};
constexpr TextForm<std::optional<Moment>> moment{writeMoment, momentFromInternationalForm};

/// Calls `use` with every preference in turn.
template <class Use> void forEachPreference(Use&& use)
{
    using Fields = PreferenceFields;
    static const std::tuple preferences{
        Preference<bool>{"isAutoPlay", &Fields::PREF_IS_AUTOPLAY, flag, false},
        Preference<bool>{"isAutoPlayOpenApp", &Fields::PREF_IS_AUTOPLAY_OPEN_APP, flag, false},
        Preference<Text>{"defaultStation", &Fields::PREF_DEFAULT_STATION, station, selectRadioKey},
        Preference<float>{"defaultVolume", &Fields::PREF_DEFAULT_VOLUME, volume, 0.7F},
        Preference<bool>{"isVisibleWinEdit", &Fields::PREF_WINEDIT_IS_VISIBLE, flag, false},
        Preference<bool>{"enableMultipleSelection", &Fields::PREF_ENABLE_MULTIPLE_SELECTION, flag, true},
        Preference<std::int64_t>{"maxLenghtRadioName", &Fields::PREF_MAX_NAME_RADIO_LENGHT, integer, 60},
        Preference<float>{"setTimeOutLimit", &Fields::PREF_TIMEOUT_LIMIT, seconds, 30.0F},
        Preference<std::optional<Moment>>{
            "lastUpdateAppCheck", &Fields::PREF_DATE_UPDATE_LAST_APPCHECK, moment, std::nullopt},
        Preference<std::optional<Moment>>{
            "lastUpdateDataCheck", &Fields::PREF_DATE_UPDATE_LAST_DATACHECK, moment, std::nullopt},
    };
    std::apply([&](const auto&... preference) { (use(preference), ...); }, preferences);
}

Text textForKey(const PreferenceDomain& texts, std::string_view key)
{
    const auto found = texts.find(key);
    return found == texts.end() ? Text() : found->second;
}

} // namespace

void setPreferenceStartValues(PreferenceFields& fields)
{
    forEachPreference([&](const auto& preference) { fields.*preference.field = preference.startValue; });
}

void readPreferenceTexts(const PreferenceDomain& texts, PreferenceFields& fields)
{
    forEachPreference([&](const auto& preference) {
        fields.*preference.field = preference.form.read(textForKey(texts, preference.key));
    });
}

PreferenceDomain preferenceTexts(const PreferenceFields& fields)
{
    PreferenceDomain texts;
    forEachPreference([&](const auto& preference) {
        texts.insert_or_assign(std::string(preference.key), preference.form.write(fields.*preference.field));
    });
    return texts;
}

} // namespace sonavel
