#include "prefs/Preferences.h"

#include "platform/UserFile.h"
#include "prefs/PreferenceTexts.h"
#include "ui/Window.h"

#include <utility>

namespace sonavel {

void Preferences::setStartValues()
{
    setPreferenceStartValues(*this);
}

void Preferences::loadingPreference()
{
    const auto domain = domains_.persistentDomainForName(preferenceDomainName);
    if (domain)
        readPreferenceTexts(*domain, *this);
    else
        updatePreference();
}

void Preferences::updatePreference()
{
    PREF_WINEDIT_IS_VISIBLE = winWebRadioListEdit_.isVisible();
    PreferenceDomain domain = preferenceTexts(*this);
    domain.insert_or_assign("appVersion", bundle_.shortVersion);
    domain.insert_or_assign("appBuild", bundle_.version);
    domains_.setPersistentDomainForName(domain, preferenceDomainName);
    domains_.synchronize();
}

} // namespace sonavel
