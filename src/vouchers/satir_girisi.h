#pragma once

#include "fis_satir.h"

#include <QObject>

#include <functional>

class QKeyEvent;
class QLineEdit;
class QWidget;
class SatirIzgarasi;

// The keys of a line grid and of the editor over its current cell, shared by
// the voucher and the write-off screens: Enter walks the columns, a typed
// key starts the cell's editor, the arrows leave the editor, Esc blanks the
// line box. Column 1 holds the class code, 2 its name, 6 the price and 7 a
// date on both screens; a line grid holds 25 lines.
class SatirGirisi : public QObject
{
    Q_OBJECT

public:
    struct Islevler
    {
        // Enter on the code column, before the step to the name.
        std::function<void()> KodEnter;
        // A message with an OK button.
        std::function<void(const QString&)> Bildir;
    };

    SatirGirisi(SatirIzgarasi* izgara, Islevler islevler, QObject* ebeveyn = nullptr);

    // A key pressed on the grid or on the editor over its current cell;
    // true when it was taken.
    bool Tus(QObject* nesne, QKeyEvent* olay);

    static bool EnterMi(const QKeyEvent* olay);

    // The line box when it stands over the current cell.
    QLineEdit* TE1() const;
    // The code as its combo shows it, over the code column; else the cell's.
    QString KodMetni() const;
    // Gives the focus to the editor over the current cell.
    void EditorOdak();
    // Moves the current cell; a row past the grid's last is refused with a
    // message.
    bool SatirGit(int satir, int sutun);
    // F6 or F8: the current row leaves the grid, the rows under it move up.
    void SatirSil();
    // Insert: the current cell goes down by the screen's rule, and the cursor
    // with it when the rule says so; the last row has none below.
    void AsagiKopyala(const std::function<bool(QList<QStringList>&, FisSatir::Hucre)>& kopya);

private:
    QString Hucre(int sutun) const;
    void HucreYaz(int sutun, const QString& metin);
    bool IzgaraTusu(QKeyEvent* olay);
    void IzgaraEnter();
    // The date editor and its cell take today's date.
    void BugunYaz();
    bool TE1Tusu(QKeyEvent* olay);
    bool EditorTusu(QKeyEvent* olay);
    static void TusuGonder(QWidget* hedef, QKeyEvent* olay);

    SatirIzgarasi* T;
    Islevler m_islevler;
};
