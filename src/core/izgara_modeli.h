#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QStringList>

// The cells of a line grid: a fixed number of rows of text under one
// heading row. Rows are counted from 1 as the old flex grids counted them;
// row 0 is the heading. The columns come from a table, so each screen's grid
// is a table of its own over the same model and editors.

// The editor that stands over a cell of the column.
enum class EditorTuru {
    Metin,  // a line box that writes upper case by the Turkish rules
    Liste,  // a combo that takes typed text as well as picked items
    Tarih,  // a date editor that can stand empty
};

struct IzgaraSutunu
{
    QString baslik;
    int genislik;  // twips
    EditorTuru editor = EditorTuru::Metin;
    // The editor's object name, by which the screen knows it.
    QString editorAdi;
    // Shown while the column is current.
    QString ipucu;
};

class IzgaraModeli : public QAbstractTableModel
{
    Q_OBJECT

public:
    IzgaraModeli(int satirSayisi, QList<IzgaraSutunu> sutunlar, QObject* ebeveyn = nullptr);

    const QList<IzgaraSutunu>& Sutunlar() const { return m_sutunlar; }

    // Row 0 is the heading; a row or column outside the grid reads empty.
    QString Hucre(int satir, int sutun) const;
    void HucreYaz(int satir, int sutun, const QString& metin);
    // Every row, each of full width.
    QList<QStringList> Satirlar() const;
    // Fills the rows in order; missing rows and cells become empty, rows past
    // the grid's last are left out.
    void SatirlariYaz(const QList<QStringList>& satirlar);
    void Baslik(int sutun, const QString& metin);

    int rowCount(const QModelIndex& ust = QModelIndex()) const override;
    int columnCount(const QModelIndex& ust = QModelIndex()) const override;
    QVariant data(const QModelIndex& yer, int rol = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& yer, const QVariant& deger, int rol = Qt::EditRole) override;
    QVariant headerData(int bolum, Qt::Orientation yon, int rol = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& yer) const override;

private:
    QList<IzgaraSutunu> m_sutunlar;
    QList<QStringList> m_satirlar;
};
