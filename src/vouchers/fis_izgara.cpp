#include "fis_izgara.h"

#include "fis_kayit.h"
#include "fis_satir.h"

#include <QHeaderView>
#include <QKeyEvent>

FisIzgarasi::FisIzgarasi(QWidget* ebeveyn) : QTableView(ebeveyn), m_model(FisSatir::SatirSayisi, FisSutun::Sayi)
{
    setModel(&m_model);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::NoSelection);
    setTabKeyNavigation(false);
    verticalHeader()->setVisible(false);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    // Columns a few twips wide are practically hidden, as they always were.
    horizontalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setStyleSheet(QStringLiteral("QTableView::item:focus { border: 1px solid palette(highlight); }"));
    connect(selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& simdiki) {
        if (simdiki.isValid())
            emit HucreDegisti(simdiki.row() + 1, simdiki.column());
    });
}

int FisIzgarasi::Row() const
{
    return currentIndex().isValid() ? currentIndex().row() + 1 : 0;
}

int FisIzgarasi::Col() const
{
    return currentIndex().isValid() ? currentIndex().column() : 0;
}

void FisIzgarasi::HucreSec(int satir, int sutun)
{
    setCurrentIndex(m_model.index(satir - 1, sutun));
}

QString FisIzgarasi::TextMatrix(int satir, int sutun) const
{
    if (satir == 0)
        return m_model.headerData(sutun, Qt::Horizontal).toString();
    return m_model.data(m_model.index(satir - 1, sutun)).toString();
}

void FisIzgarasi::HucreYaz(int satir, int sutun, const QString& metin)
{
    m_model.setData(m_model.index(satir - 1, sutun), metin);
}

QList<QStringList> FisIzgarasi::Hucreler() const
{
    QList<QStringList> satirlar;
    for (int r = 1; r <= m_model.rowCount(); ++r) {
        QStringList satir;
        for (int c = 0; c < m_model.columnCount(); ++c)
            satir << TextMatrix(r, c);
        satirlar << satir;
    }
    return satirlar;
}

void FisIzgarasi::HucreleriYaz(const QList<QStringList>& satirlar)
{
    for (int r = 0; r < m_model.rowCount(); ++r)
        for (int c = 0; c < m_model.columnCount(); ++c)
            m_model.setData(m_model.index(r, c), satirlar.value(r).value(c));
}

void FisIzgarasi::Baslik(int sutun, const QString& metin)
{
    m_model.setHeaderData(sutun, Qt::Horizontal, metin);
}

void FisIzgarasi::Genislik(int sutun, int twip)
{
    setColumnWidth(sutun, TwipPiksel(twip));
}

QRect FisIzgarasi::HucreAlani() const
{
    return visualRect(currentIndex());
}

int FisIzgarasi::TwipPiksel(int twip) const
{
    return twip * logicalDpiX() / 1440;
}

void FisIzgarasi::keyPressEvent(QKeyEvent* olay)
{
    // Ctrl with an arrow goes to the first or the last column of the row.
    if (olay->modifiers() == Qt::ControlModifier && (olay->key() == Qt::Key_Left || olay->key() == Qt::Key_Right)) {
        HucreSec(Row(), olay->key() == Qt::Key_Left ? 0 : m_model.columnCount() - 1);
        return;
    }
    QTableView::keyPressEvent(olay);
}

namespace {
const QString tarihBicimi = QStringLiteral("dd.MM.yyyy");
}

TarihSecici::TarihSecici(QWidget* ebeveyn) : QDateEdit(ebeveyn)
{
    setDisplayFormat(tarihBicimi);
    // The minimum stands for the empty value.
    setMinimumDate(QDate(1900, 1, 1));
    setSpecialValueText(QStringLiteral(" "));
    setDate(minimumDate());
}

bool TarihSecici::Bos() const
{
    return date() == minimumDate();
}

QString TarihSecici::Metin() const
{
    return Bos() ? QString() : date().toString(tarihBicimi);
}

void TarihSecici::MetinYaz(const QString& metin)
{
    GunYaz(QDate::fromString(metin.trimmed(), tarihBicimi));
}

void TarihSecici::GunYaz(const QDate& gun)
{
    const QSignalBlocker sessiz(this);
    setDate(gun.isValid() ? gun : minimumDate());
}
