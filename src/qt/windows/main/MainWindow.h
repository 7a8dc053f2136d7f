// The main window: one station, its sound, and what is on air.
#pragma once

#include <QMainWindow>

#include <functional>
#include <memory>

namespace Ui {
class MainWindow;
}

namespace sonavel {

class ProgramMenus;

/// Built from its description, whose object names are the names of the outlets. Shown by the program, not by itself. It
/// is made as low as it can be; a larger one gives what it has to the title.
class MainWindow : public QMainWindow {
public:
    /// `menus` may be null, for a window without any.
    explicit MainWindow(ProgramMenus* menus);
    ~MainWindow() override;

    /// What is on air, or what keeps it from being so. Faded when `text` is about nothing that plays; a failure bears a
    /// mark.
    enum class Emphasis { Faded, Usual, Failure };
    void showNowPlaying(const QString& text, Emphasis emphasis);

    /// A failure that the user should know of, on a line whose height does not change; it goes away by itself.
    void showNotice(const QString& text);

    /// Calls `action` once, on the loop's turn after the window has been painted for the first time.
    void afterFirstPaint(std::function<void()> action) { afterFirstPaint_ = std::move(action); }

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void setUpProportions();
    void setUpSize();
    void setUpColors();
    void keepMargins();

    std::unique_ptr<Ui::MainWindow> description_;
    Emphasis emphasis_ = Emphasis::Faded;
    std::function<void()> afterFirstPaint_;
};

} // namespace sonavel
