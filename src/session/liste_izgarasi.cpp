#include "liste_izgarasi.h"

#include "veritabani.h"

#include <QHeaderView>
#include <QKeyEvent>

ListeIzgarasi::ListeIzgarasi(QWidget* ebeveyn) : QTableView(ebeveyn)
{
    setModel(&m_model);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::SingleSelection);
    verticalHeader()->setVisible(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
    horizontalHeader()->setHighlightSections(false);
    setAlternatingRowColors(true);
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& simdiki) {
                if (simdiki.isValid())
                    emit HucreDegisti(simdiki.row() + 1, simdiki.column());
            });
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& i) { emit CiftTiklandi(i.isValid() ? i.row() + 1 : 0); });
}

void ListeIzgarasi::Basliklar(const QStringList& basliklar)
{
    if (m_model.columnCount() < basliklar.size())
        m_model.setColumnCount(int(basliklar.size()));
    m_model.setHorizontalHeaderLabels(basliklar);
    GenislikleriUygula();
}

void ListeIzgarasi::Genislikler(const QList<int>& twipler)
{
    m_genislikler = twipler;
    if (m_model.columnCount() < twipler.size())
        m_model.setColumnCount(int(twipler.size()));
    GenislikleriUygula();
}

void ListeIzgarasi::GenislikleriUygula()
{
    const double pikselBasina = logicalDpiX() / 1440.0;
    for (int i = 0; i < m_genislikler.size(); ++i) {
        setColumnHidden(i, m_genislikler[i] < 101);
        setColumnWidth(i, int(m_genislikler[i] * pikselBasina));
    }
}

void ListeIzgarasi::Doldur(Veritabani& vt, const QString& sql, const QVariantList& degerler)
{
    Satirlar(vt.Satirlar(sql, degerler));
}

void ListeIzgarasi::Satirlar(const QList<QStringList>& satirlar)
{
    m_model.setRowCount(0);
    for (const QStringList& satir : satirlar)
        SatirEkle(satir);
}

void ListeIzgarasi::SatirEkle(const QStringList& satir)
{
    QList<QStandardItem*> ogeler;
    for (const QString& hucre : satir)
        ogeler << new QStandardItem(hucre);
    m_model.appendRow(ogeler);
}

void ListeIzgarasi::Temizle()
{
    m_model.setRowCount(0);
}

int ListeIzgarasi::Rows() const
{
    return m_model.rowCount() + 1;
}

QString ListeIzgarasi::TextMatrix(int satir, int sutun) const
{
    if (satir == 0)
        return m_model.headerData(sutun, Qt::Horizontal).toString();
    return m_model.data(m_model.index(satir - 1, sutun)).toString();
}

int ListeIzgarasi::Row() const
{
    const QModelIndex i = currentIndex();
    return i.isValid() ? i.row() + 1 : 0;
}

int ListeIzgarasi::Col() const
{
    const QModelIndex i = currentIndex();
    return i.isValid() ? i.column() : 0;
}

void ListeIzgarasi::SatirSec(int satir, int sutun)
{
    setCurrentIndex(m_model.index(satir - 1, sutun));
}

Izgara ListeIzgarasi::Anlik() const
{
    return ModeldenIzgara(m_model, m_genislikler);
}

void ListeIzgarasi::keyPressEvent(QKeyEvent* olay)
{
    if ((olay->key() == Qt::Key_Return || olay->key() == Qt::Key_Enter) && Row() > 0) {
        emit EnterBasildi(Row());
        return;
    }
    QTableView::keyPressEvent(olay);
}
