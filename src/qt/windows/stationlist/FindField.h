// The field in which the user types what to look for.
#pragma once

#include <QLineEdit>

#include <functional>

namespace sonavel {

/// Return goes on, Shift+Return goes back, Escape leaves. Tinted while nothing is found.
class FindField : public QLineEdit {
public:
    /// What the user asks for.
    struct Requests {
        std::function<void()> search; ///< the text was typed
        std::function<void()> next;
        std::function<void()> previous;
        std::function<void()> leave; ///< the field is empty by then
    };

    explicit FindField(QWidget* parent = nullptr);

    void setRequests(Requests requests) { requests_ = std::move(requests); }
    enum class Outcome { Found, Nothing };
    void showOutcome(Outcome outcome);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void takeColors();
    void takeDirection();

    Requests requests_;
    QAction* searchIcon_;
    Outcome outcome_ = Outcome::Found;
};

} // namespace sonavel
