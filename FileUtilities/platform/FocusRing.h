#pragma once

#include <QObject>
#include <QPointer>

class QWidget;

// Draws a ring around whichever control has the keyboard, in any window of the program.
//
// The program's own buttons, fields and tabs are drawn by style sheets that leave no focus
// mark of their own, so without this a keyboard user cannot see where Tab went. The ring
// follows focus that came from the keyboard; a click moves the focus without one, as
// desktops do. A control that shows its focus itself (a list's current row) says so with
// the property "drawsOwnFocus".
class FocusRing : public QObject
{
    Q_OBJECT

public:
    explicit FocusRing(QObject *parent = nullptr);
    ~FocusRing() override;

    // The control the ring stands around now, if any.
    QWidget *target() const { return m_target; }
    QWidget *ring() const { return m_ring; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void follow(QWidget *old, QWidget *now);
    void place();

    QPointer<QWidget> m_target;
    QPointer<QWidget> m_ring;
};
