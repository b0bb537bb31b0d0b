#pragma once

#include <QDateEdit>
#include <QStandardItemModel>
#include <QTableView>

// The line grid of the voucher screen: 25 rows of 17 text columns under one
// heading row, counted from 1 as the old flex grid counted them. It never
// edits itself: the screen places its editors over the current cell.
class FisIzgarasi : public QTableView
{
    Q_OBJECT

public:
    explicit FisIzgarasi(QWidget* ebeveyn = nullptr);

    int Row() const;
    int Col() const;
    void HucreSec(int satir, int sutun);
    QString TextMatrix(int satir, int sutun) const;
    void HucreYaz(int satir, int sutun, const QString& metin);
    // Every row, each of full width.
    QList<QStringList> Hucreler() const;
    // Fills the rows in order; missing rows and cells stay empty, rows past
    // the grid's last are left out.
    void HucreleriYaz(const QList<QStringList>& satirlar);
    void Baslik(int sutun, const QString& metin);
    void Genislik(int sutun, int twip);
    // The current cell in the viewport's coordinates.
    QRect HucreAlani() const;
    int TwipPiksel(int twip) const;

signals:
    // The current cell moved, by key, click or code.
    void HucreDegisti(int satir, int sutun);

protected:
    void keyPressEvent(QKeyEvent* olay) override;

private:
    QStandardItemModel m_model;
};

// The date editor placed over the date column. It can stand empty, which it
// shows as a blank; the grid takes its text, empty or "dd.MM.yyyy".
class TarihSecici : public QDateEdit
{
    Q_OBJECT

public:
    explicit TarihSecici(QWidget* ebeveyn = nullptr);

    bool Bos() const;
    QString Metin() const;
    // Sets the value without telling: an unreadable text leaves it empty.
    void MetinYaz(const QString& metin);
    void GunYaz(const QDate& gun);
};
