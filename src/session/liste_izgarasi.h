#pragma once

#include "izgara.h"

#include <QMap>
#include <QTableView>

class ListeModeli;
class QHBoxLayout;
class QLineEdit;
class QRadioButton;
class Veritabani;

// A list grid with the manners of the old flex grid: row 0 is the heading,
// rows of data count from 1, column widths are given in twips, and a width
// below 101 twips hides the column. Read only; filled from a query or rows.
// A query shows its first block of rows at once and the rest is read in the
// background, a slice per turn of the event loop, so that a list over a
// million lines opens at once and lets go of the file soon after. Only a
// window of blocks stays in memory; the rest waits in a temporary file.
class ListeIzgarasi : public QTableView
{
    Q_OBJECT

public:
    // Rows read from a query before the first screen, and rows a block.
    static constexpr int Blok = 256;
    // Blocks kept in memory.
    static constexpr int Pencere = 16;

    explicit ListeIzgarasi(QWidget* ebeveyn = nullptr, int pencere = Pencere);
    ~ListeIzgarasi() override;

    void Basliklar(const QStringList& basliklar);
    void Genislikler(const QList<int>& twipler);
    // The column is at least wide enough to show the sample whole (a date,
    // where the width in twips falls short of it in the screen's font).
    void EnAzGenislik(int sutun, const QString& ornek);
    // Replaces the rows with those of the query (values bound). The grid
    // reads on its own connection to vt's file, so vt may go at once; the
    // query holds its read until the background has read its last row or the
    // grid is filled anew. Throws VeriHatasi when the query fails.
    void Doldur(Veritabani& vt, const QString& sql, const QVariantList& degerler = {});
    void Satirlar(const QList<QStringList>& satirlar);
    void SatirEkle(const QStringList& satir);
    void Temizle();
    // Sets one cell of a data row (1 upward) already read.
    void HucreYaz(int satir, int sutun, const QString& metin);

    // Rows including the heading row, as the flex grid counted them; rows not
    // read yet are counted.
    int Rows() const;
    // Rows read so far, the heading not counted.
    int Okunan() const;
    QString TextMatrix(int satir, int sutun) const;
    // The current row (1 upward), 0 when there is none.
    int Row() const;
    int Col() const;
    void SatirSec(int satir, int sutun = 0);
    // What the grid holds, for printing: the rest of a query is read first,
    // then each row is read through the window as it is printed (empty once
    // the grid is gone).
    Izgara Anlik() const;

signals:
    // The current cell moved, by click or by key (row 1 upward).
    void HucreDegisti(int satir, int sutun);
    void CiftTiklandi(int satir);
    // Enter on a row.
    void EnterBasildi(int satir);

protected:
    void keyPressEvent(QKeyEvent* olay) override;

private:
    ListeModeli* m_model;
    QList<int> m_genislikler;
    QMap<int, QString> m_ornekler;
    void GenislikleriUygula();
};

// Up and Down pressed on one of a list screen's other controls lead to its
// rows; true when the event was such a key.
bool OkTusuListeye(ListeIzgarasi* liste, QEvent* olay);

// The filter row of a list: each filter box stands over the column it
// narrows, with the same width, and the sort options follow. The list is
// made at least wide enough for those columns.
QHBoxLayout* SuzgecSatiri(ListeIzgarasi* liste, const QList<QLineEdit*>& suzgecler,
                          const QList<QRadioButton*>& siralar);
