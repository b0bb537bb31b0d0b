#pragma once

// Gives a screen the activation back: the offscreen platform does not when a
// message box closes, and keys go to the active window.

#include <QTest>
#include <QWidget>

inline void Etkinlestir(QWidget* ekran)
{
    ekran->activateWindow();
    if (!QTest::qWaitForWindowActive(ekran))
        qFatal("the screen did not become active");
}
