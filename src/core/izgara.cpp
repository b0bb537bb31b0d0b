#include "izgara.h"

#include <QAbstractItemModel>

Izgara::Izgara(const QList<QStringList>& satirlar, const QList<int>& genislikler)
    : m_satirlar(satirlar)
    , m_genislikler(genislikler)
{
}

int Izgara::Rows() const
{
    return int(m_satirlar.size());
}

int Izgara::Cols() const
{
    return int(m_genislikler.size());
}

QString Izgara::TextMatrix(int satir, int sutun) const
{
    return m_satirlar.value(satir).value(sutun);
}

int Izgara::ColWidth(int sutun) const
{
    return m_genislikler.value(sutun);
}

Izgara ModeldenIzgara(const QAbstractItemModel& model, const QList<int>& genislikler)
{
    QList<QStringList> satirlar;
    QStringList basliklar;
    for (int sutun = 0; sutun < genislikler.size(); ++sutun)
        basliklar.append(model.headerData(sutun, Qt::Horizontal).toString());
    satirlar.append(basliklar);
    for (int satir = 0; satir < model.rowCount(); ++satir) {
        QStringList hucreler;
        for (int sutun = 0; sutun < genislikler.size(); ++sutun)
            hucreler.append(model.index(satir, sutun).data().toString());
        satirlar.append(hucreler);
    }
    return Izgara(satirlar, genislikler);
}
