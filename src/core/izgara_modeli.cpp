#include "izgara_modeli.h"

IzgaraModeli::IzgaraModeli(int satirSayisi, QList<IzgaraSutunu> sutunlar, QObject* ebeveyn)
    : QAbstractTableModel(ebeveyn), m_sutunlar(std::move(sutunlar)),
      m_satirlar(satirSayisi, QStringList(m_sutunlar.size(), QString()))
{
}

QString IzgaraModeli::Hucre(int satir, int sutun) const
{
    if (satir == 0)
        return m_sutunlar.value(sutun).baslik;
    return m_satirlar.value(satir - 1).value(sutun);
}

void IzgaraModeli::HucreYaz(int satir, int sutun, const QString& metin)
{
    setData(index(satir - 1, sutun), metin);
}

QList<QStringList> IzgaraModeli::Satirlar() const
{
    return m_satirlar;
}

void IzgaraModeli::SatirlariYaz(const QList<QStringList>& satirlar)
{
    // Cell by cell, so that an editor standing over a cell takes its new text.
    for (int r = 0; r < rowCount(); ++r)
        for (int c = 0; c < columnCount(); ++c)
            setData(index(r, c), satirlar.value(r).value(c));
}

void IzgaraModeli::Baslik(int sutun, const QString& metin)
{
    if (sutun < 0 || sutun >= m_sutunlar.size() || m_sutunlar[sutun].baslik == metin)
        return;
    m_sutunlar[sutun].baslik = metin;
    emit headerDataChanged(Qt::Horizontal, sutun, sutun);
}

int IzgaraModeli::rowCount(const QModelIndex& ust) const
{
    return ust.isValid() ? 0 : int(m_satirlar.size());
}

int IzgaraModeli::columnCount(const QModelIndex& ust) const
{
    return ust.isValid() ? 0 : int(m_sutunlar.size());
}

QVariant IzgaraModeli::data(const QModelIndex& yer, int rol) const
{
    if (!yer.isValid() || (rol != Qt::DisplayRole && rol != Qt::EditRole))
        return {};
    return m_satirlar.at(yer.row()).at(yer.column());
}

bool IzgaraModeli::setData(const QModelIndex& yer, const QVariant& deger, int rol)
{
    if (!yer.isValid() || rol != Qt::EditRole)
        return false;
    QString& hucre = m_satirlar[yer.row()][yer.column()];
    const QString metin = deger.toString();
    if (hucre == metin)
        return true;
    hucre = metin;
    emit dataChanged(yer, yer, {Qt::DisplayRole, Qt::EditRole});
    return true;
}

QVariant IzgaraModeli::headerData(int bolum, Qt::Orientation yon, int rol) const
{
    if (yon != Qt::Horizontal || rol != Qt::DisplayRole || bolum < 0 || bolum >= m_sutunlar.size())
        return QAbstractTableModel::headerData(bolum, yon, rol);
    return m_sutunlar.at(bolum).baslik;
}

Qt::ItemFlags IzgaraModeli::flags(const QModelIndex& yer) const
{
    return QAbstractTableModel::flags(yer) | Qt::ItemIsEditable;
}
