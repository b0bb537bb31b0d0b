#include "izgara.h"

#include <QAbstractItemModel>
#include <QPointer>

Izgara::Izgara(const QList<QStringList>& satirlar, const QList<int>& genislikler)
    : Izgara(int(satirlar.size()),
             [satirlar](int satir, int sutun) { return satirlar[satir].value(sutun); }, genislikler)
{
}

Izgara::Izgara(int satirSayisi, Hucre hucre, const QList<int>& genislikler)
    : m_satirSayisi(satirSayisi)
    , m_hucre(std::move(hucre))
    , m_genislikler(genislikler)
{
}

int Izgara::Rows() const
{
    return m_satirSayisi;
}

int Izgara::Cols() const
{
    return int(m_genislikler.size());
}

QString Izgara::TextMatrix(int satir, int sutun) const
{
    return satir >= 0 && satir < m_satirSayisi ? m_hucre(satir, sutun) : QString();
}

int Izgara::ColWidth(int sutun) const
{
    return m_genislikler.value(sutun);
}

Izgara ModeldenIzgara(const QAbstractItemModel& model, const QList<int>& genislikler)
{
    const QPointer<const QAbstractItemModel> kaynak(&model);
    return Izgara(
        model.rowCount() + 1,
        [kaynak](int satir, int sutun) {
            if (!kaynak)
                return QString();
            return satir == 0 ? kaynak->headerData(sutun, Qt::Horizontal).toString()
                              : kaynak->index(satir - 1, sutun).data().toString();
        },
        genislikler);
}
