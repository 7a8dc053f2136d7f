#include "qt/binders/Binder.h"
#include "qt/binders/Binders.h"
#include "qt/kit/TextConversion.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaObject>
#include <QScopedValueRollback>
#include <QSignalBlocker>

#include <algorithm>
#include <limits>

namespace sonavel {

namespace {

class TextFieldBinder : public Binder<TextField, QLineEdit> {
public:
    TextFieldBinder(TextField& field, QLineEdit& widget);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void report();
    void render(const TextFieldState& state);
    void endComposition();
    void replaceDifference(const QString& text);

    bool isComposing_ = false;
    bool isReporting_ = false;
    bool isRedoing_ = false;
};

TextFieldBinder::TextFieldBinder(TextField& field, QLineEdit& widget)
    : Binder(field, widget)
{
    widget.setMaxLength(std::numeric_limits<int>::max());
    control_.connect({toText(widget.text())}, [this](const TextFieldState& state) { render(state); });
    connect(&widget, &QLineEdit::textEdited, this, [this] { report(); });
    widget.installEventFilter(this);
}

bool TextFieldBinder::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::InputMethod) {
        const bool wasComposing = isComposing_;
        isComposing_ = !static_cast<QInputMethodEvent*>(event)->preeditString().isEmpty();
        // A composition that began over a selection has changed the text even when it ends with nothing.
        if (wasComposing && !isComposing_)
            QMetaObject::invokeMethod(
                this, [this] { report(); }, Qt::QueuedConnection);
    } else if (event->type() == QEvent::KeyPress) {
        isRedoing_ = static_cast<QKeyEvent*>(event)->matches(QKeySequence::Redo);
    }
    return QObject::eventFilter(watched, event);
}

void TextFieldBinder::report()
{
    if (isComposing_)
        return;
    const QScopedValueRollback<bool> reporting(isReporting_, true);
    control_.typedByUser(toText(widget_.text()));
}

void TextFieldBinder::render(const TextFieldState& state)
{
    const QString text = toQString(state.stringValue);
    if (text == widget_.text() && !isComposing_)
        return;
    // Undo led to a text that the program has refused before: the user means the one before that.
    if (isReporting_ && !isRedoing_ && widget_.isRedoAvailable() && widget_.isUndoAvailable()) {
        QMetaObject::invokeMethod(&widget_, &QLineEdit::undo, Qt::DirectConnection);
        return;
    }
    if (isReporting_) {
        replaceDifference(text);
        return;
    }
    endComposition();
    widget_.setText(text);
}

/// What was composed so far goes away with it.
void TextFieldBinder::endComposition()
{
    if (!isComposing_)
        return;
    QGuiApplication::inputMethod()->reset();
    QInputMethodEvent nothingComposed;
    QCoreApplication::sendEvent(&widget_, &nothingComposed);
}

void TextFieldBinder::replaceDifference(const QString& text)
{
    const QString shown = widget_.text();
    const auto [oneDiffers, otherDiffers] = std::mismatch(shown.begin(), shown.end(), text.begin(), text.end());
    const auto before = oneDiffers - shown.begin();
    const auto rest = std::min(shown.end() - oneDiffers, text.end() - otherDiffers);
    const auto sameFromEnd = std::mismatch(shown.rbegin(), shown.rbegin() + rest, text.rbegin()).first - shown.rbegin();
    const auto shownLength = static_cast<int>(shown.size() - before - sameFromEnd);
    const auto newLength = static_cast<int>(text.size() - before - sameFromEnd);

    int caret = widget_.cursorPosition();
    if (caret >= before + shownLength)
        caret += newLength - shownLength;
    else
        caret = std::min(caret, static_cast<int>(before) + newLength);
    const QSignalBlocker silence(widget_);
    widget_.setSelection(static_cast<int>(before), shownLength);
    widget_.insert(text.mid(before, newLength));
    widget_.setCursorPosition(caret);
}

} // namespace

void bind(TextField& field, QLineEdit& widget)
{
    new TextFieldBinder(field, widget);
}

} // namespace sonavel
