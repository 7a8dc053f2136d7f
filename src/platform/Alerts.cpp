#include "platform/Alerts.h"

#include "platform/LocalizedStrings.h"

namespace sonavel {

bool isAnsweredYes(Alerts& alerts, const LocalizedStrings& localizedStrings, const Text& question)
{
    return alerts.runModal({question,
               {localizedStrings.localizedStringForKey("BUTTON_YES"),
                   localizedStrings.localizedStringForKey("BUTTON_NO")}})
        == firstButtonAnswer;
}

} // namespace sonavel
