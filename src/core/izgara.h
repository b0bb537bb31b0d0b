#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QAbstractItemModel;

// What a flex grid holds when it is printed: cell texts by row, row 0 being
// the headings, and the column widths in twips. The columns are those with a
// width; a cell beyond the texts of its row is empty.
class Izgara
{
public:
    Izgara() = default;
    Izgara(const QList<QStringList>& satirlar, const QList<int>& genislikler);

    int Rows() const;
    int Cols() const;
    QString TextMatrix(int satir, int sutun) const;
    int ColWidth(int sutun) const;

private:
    QList<QStringList> m_satirlar;
    QList<int> m_genislikler;
};

// The model's display texts under its horizontal headings, one column per
// given width.
Izgara ModeldenIzgara(const QAbstractItemModel& model, const QList<int>& genislikler);
