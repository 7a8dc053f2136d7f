// Modal questions and notices.
#pragma once

#include "base/NonCopyable.h"
#include "base/Text.h"

#include <vector>

namespace sonavel {

class LocalizedStrings;

/// What an alert shows: one message and its buttons, in the order in which they were added. Without a button it has the
/// toolkit's one default button.
struct Alert {
    Text messageText;
    std::vector<Text> buttonTitles;
};

/// What `runModal` answers for the first button, and so on by one for each further button.
inline constexpr int firstButtonAnswer = 1000;
inline constexpr int secondButtonAnswer = 1001;

class Alerts : private NonCopyable {
public:
    virtual ~Alerts() = default;

    /// Shows the alert, takes no input elsewhere and returns when a button was pressed: 1000 for the first, 1001 for
    /// the second and so on. An alert that is dismissed otherwise answers for its last button. The message is plain
    /// text. Main thread; other events of the program are handled meanwhile.
    virtual int runModal(const Alert& alert) = 0;
};

/// Shows `question` as an alert with the buttons Yes and No; whether the answer is Yes.
[[nodiscard]] bool isAnsweredYes(Alerts& alerts, const LocalizedStrings& localizedStrings, const Text& question);

} // namespace sonavel
