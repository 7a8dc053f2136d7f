// The text form of the preferences: one table of their keys, forms and start values.
#pragma once

#include "platform/PreferenceDomains.h"
#include "prefs/PreferenceFields.h"

namespace sonavel {

/// Sets every stored field to the value that it has before anything was stored.
void setPreferenceStartValues(PreferenceFields& fields);

/// Sets every stored field from its text. A key that is missing, or a text that is not in the field's form, gives NO, 0
/// or absent, never the start value.
void readPreferenceTexts(const PreferenceDomain& texts, PreferenceFields& fields);

/// The text of every stored field under its key. Moments are cut to whole seconds.
[[nodiscard]] PreferenceDomain preferenceTexts(const PreferenceFields& fields);

} // namespace sonavel
