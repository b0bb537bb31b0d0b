#pragma once

#include "izgara.h"

#include <QStandardItemModel>
#include <QTableView>

class Veritabani;

// A list grid with the manners of the old flex grid: row 0 is the heading,
// rows of data count from 1, column widths are given in twips, and a width
// below 101 twips hides the column. Read only; filled from a query or rows.
class ListeIzgarasi : public QTableView
{
    Q_OBJECT

public:
    explicit ListeIzgarasi(QWidget* ebeveyn = nullptr);

    void Basliklar(const QStringList& basliklar);
    void Genislikler(const QList<int>& twipler);
    // Replaces the rows with those of the query (values bound).
    void Doldur(Veritabani& vt, const QString& sql, const QVariantList& degerler = {});
    void Satirlar(const QList<QStringList>& satirlar);
    void SatirEkle(const QStringList& satir);
    void Temizle();

    // Rows including the heading row, as the flex grid counted them.
    int Rows() const;
    QString TextMatrix(int satir, int sutun) const;
    // The current row (1 upward), 0 when there is none.
    int Row() const;
    int Col() const;
    void SatirSec(int satir, int sutun = 0);
    // What the grid holds, for printing.
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
    QStandardItemModel m_model;
    QList<int> m_genislikler;
    void GenislikleriUygula();
};
