#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

class QAbstractItemModel;

// What a flex grid holds when it is printed: cell texts by row, row 0 being
// the headings, and the column widths in twips. The columns are those with a
// width; a cell beyond the texts of its row is empty. The cells may be held
// or read from their source as they are asked for, so that a long list
// prints without being copied whole.
class Izgara
{
public:
    // The text of a cell, for 0 <= satir < Rows().
    using Hucre = std::function<QString(int satir, int sutun)>;

    Izgara() = default;
    Izgara(const QList<QStringList>& satirlar, const QList<int>& genislikler);
    Izgara(int satirSayisi, Hucre hucre, const QList<int>& genislikler);

    int Rows() const;
    int Cols() const;
    QString TextMatrix(int satir, int sutun) const;
    int ColWidth(int sutun) const;

private:
    int m_satirSayisi = 0;
    Hucre m_hucre;
    QList<int> m_genislikler;
};

// The model's display texts under its horizontal headings, one column per
// given width, read from the model as they are printed; a grid whose model
// is gone has empty cells.
Izgara ModeldenIzgara(const QAbstractItemModel& model, const QList<int>& genislikler);
