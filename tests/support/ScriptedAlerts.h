// Alerts that are answered as the test says.
#pragma once

#include "platform/Alerts.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <utility>

namespace sonavel {

/// An alert that is not expected fails the test, and so does one that was expected and never shown.
class ScriptedAlerts : public Alerts {
public:
    ~ScriptedAlerts() override { EXPECT_TRUE(script_.empty()) << "an expected alert was not shown"; }

    /// The next alert shows `message` and is answered with `answer`, after `whileOpen` has run.
    void expect(
        const Text& message, int answer, std::function<void()> whileOpen = [] {})
    {
        script_.push_back({message, answer, std::move(whileOpen)});
    }

    /// What was shown so far.
    std::vector<Alert> shown;

    int runModal(const Alert& alert) override
    {
        shown.push_back(alert);
        if (script_.empty() || script_.front().message != alert.messageText) {
            ADD_FAILURE() << "unexpected alert: " << alert.messageText.view();
            return secondButtonAnswer;
        }
        const Expected expected = std::move(script_.front());
        script_.pop_front();
        expected.whileOpen();
        return expected.answer;
    }

private:
    struct Expected {
        Text message;
        int answer;
        std::function<void()> whileOpen;
    };
    std::deque<Expected> script_;
};

} // namespace sonavel
