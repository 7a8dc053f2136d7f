// The closed box and the opened list of a pop-up of stations.
#pragma once

#include <QComboBox>

namespace sonavel {

/// A combo box from which the user chooses only by a click or Return in the opened list: with the stations of a radio,
/// a turn of the wheel or an arrow key on the closed box would start or stop one station after the other. Keys that
/// move through the items open the list and move its highlight instead; with Alt, Ctrl or Meta, all but Alt+Up and
/// Alt+Down, which open the list, are left to others. Shows 100,000 items as quickly as ten.
class StationComboBox : public QComboBox {
public:
    explicit StationComboBox(QWidget* parent = nullptr);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    void openListAndPass(QKeyEvent& event);
};

} // namespace sonavel
