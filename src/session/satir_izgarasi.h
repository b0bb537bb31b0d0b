#pragma once

#include "izgara_modeli.h"

#include <QHash>
#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QTableView>

class QStringListModel;

// The editors of a line grid, by the kind its column table gives each
// column: a line box, a combo over a list the screen hands in, a date
// editor. Every change reaches the cell at once; the keys are the screen's.
class IzgaraDelegesi : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit IzgaraDelegesi(QObject* ebeveyn = nullptr);

    // The items a combo column offers; the list stays the caller's.
    void ListeVer(int sutun, QAbstractItemModel* liste);

    QWidget* createEditor(QWidget* ebeveyn, const QStyleOptionViewItem& secenek,
                          const QModelIndex& yer) const override;
    void setEditorData(QWidget* editor, const QModelIndex& yer) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& yer) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& secenek,
                              const QModelIndex& yer) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& yer) const override;

signals:
    // An item was picked from the list of a combo column.
    void Secildi(int sutun, int sira, const QString& oge);

protected:
    // The delegate's own Enter, Tab, Esc and focus rules stay out.
    bool eventFilter(QObject* nesne, QEvent* olay) override;

private:
    // The list's widest item, so that its drop-down shows whole names.
    int ListeGenisligi(QAbstractItemModel* liste, const QFontMetrics& olcu) const;

    QHash<int, QAbstractItemModel*> m_listeler;
    mutable QHash<QAbstractItemModel*, int> m_genislikler;
};

// The line grid: its editor always stands over the current cell, while the
// focus may be on the grid or in the editor. Rows count from 1; row 0 is the
// heading.
class SatirIzgarasi : public QTableView
{
    Q_OBJECT

public:
    // Takes the model over.
    explicit SatirIzgarasi(IzgaraModeli* model, QWidget* ebeveyn = nullptr);

    IzgaraModeli* Model() const { return m_model; }
    IzgaraDelegesi* Delege() const { return m_delege; }

    int Row() const;
    int Col() const;
    void HucreSec(int satir, int sutun);
    QString TextMatrix(int satir, int sutun) const;
    void HucreYaz(int satir, int sutun, const QString& metin);
    QList<QStringList> Hucreler() const;
    void HucreleriYaz(const QList<QStringList>& satirlar);
    void Baslik(int sutun, const QString& metin);
    void Genislik(int sutun, int twip);
    // Captions and widths as the table has them, the current cell at row 1,
    // column 0.
    void Hazirla(const QList<IzgaraSutunu>& sutunlar);
    // The current cell in the viewport's coordinates.
    QRect HucreAlani() const;
    int TwipPiksel(int twip) const;

    // Refills a combo column's list; what is typed in the combo over the
    // current cell stays.
    void ListeDoldur(QStringListModel* liste, const QStringList& ogeler);

    // A widget that stands over the whole grid when shown (a list of the
    // line's movements), kept on the grid's place as the screen changes.
    void Ortu(QWidget* ortu);

    // The editor over the current cell, none before a cell is current.
    QWidget* Editor() const;
    EditorTuru SutunEditoru(int sutun) const;

signals:
    // The current cell moved, by key, click or code; its editor stands.
    void HucreDegisti(int satir, int sutun);
    void EditorAcildi(QWidget* editor);

protected:
    void keyPressEvent(QKeyEvent* olay) override;
    void moveEvent(QMoveEvent* olay) override;
    void resizeEvent(QResizeEvent* olay) override;

private:
    void EditorTasi(const QModelIndex& yer);

    IzgaraModeli* m_model;
    IzgaraDelegesi* m_delege;
    QPersistentModelIndex m_editorYeri;
    QPointer<QWidget> m_ortu;
};
