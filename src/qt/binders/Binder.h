// What the binders have in common.
#pragma once

#include <QObject>

namespace sonavel {

/// Belongs to its widget; when that goes away, so does the control's connection.
template <class Control, class Widget> class Binder : public QObject {
public:
    Binder(Control& control, Widget& widget)
        : QObject(&widget)
        , control_(control)
        , widget_(widget)
    {
    }
    ~Binder() override { control_.disconnect(); }

protected:
    Control& control_;
    Widget& widget_;
};

} // namespace sonavel
