// Questions that are answered with Yes or No.
#pragma once

namespace sonavel {

class Alerts;
class LocalizedStrings;
class Text;

/// Shows `question` as an alert with the buttons Yes and No; whether the answer is Yes.
[[nodiscard]] bool isAnsweredYes(Alerts& alerts, const LocalizedStrings& localizedStrings, const Text& question);

} // namespace sonavel
