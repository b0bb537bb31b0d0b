#pragma once

// Types text as key presses, Turkish letters included (QTest::keyClicks
// takes Latin-1 only).

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

inline void TurkceYaz(QWidget* hedef, const QString& metin)
{
    for (const QChar c : metin) {
        const int tus = c.isLetterOrNumber() && c.unicode() < 128 ? c.toUpper().unicode() : 0;
        QKeyEvent bas(QEvent::KeyPress, tus, Qt::NoModifier, QString(c));
        QApplication::sendEvent(hedef, &bas);
        QKeyEvent birak(QEvent::KeyRelease, tus, Qt::NoModifier, QString(c));
        QApplication::sendEvent(hedef, &birak);
    }
}
