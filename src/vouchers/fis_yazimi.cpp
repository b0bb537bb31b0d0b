#include "fis_yazimi.h"

#include "bicim.h"
#include "kayit.h"

QString FisYazimiKurali::CinsIsareti(const QString& cins, const FisEkrani& fis)
{
    if (cins == QLatin1String("C"))
        return QStringLiteral("Ç");
    if (cins != QLatin1String("G"))
        return QString();
    for (int i = 1; i <= 25; ++i)
        if (Val(fis.Hucre(i, FisSutun::Cikan)) > 0)
            return QStringLiteral("GÇ");
    return QStringLiteral("G");
}

double FisYazimiKurali::Miktar(const FisEkrani& fis, int satir)
{
    return Val(fis.Hucre(satir, fis.FCins == QLatin1String("G") ? FisSutun::Miktar : FisSutun::Cikan));
}

QString FisYazimiKurali::SicilYazisi(const FisEkrani& fis, int satir, int son)
{
    const QString kok = SayiMetni(Val(fis.Hucre(satir, FisSutun::HesapKod).left(13))) + fis.Tarih.mid(6, 4)
                        + SayiMetni(Val(fis.FisNo));
    return kok.left(21) + QString::number(son);
}

QString FisYazimiKurali::KdvSatiri(QVariant kdv)
{
    return QStringLiteral("    KDV. ...  : ") + Tutar2YazTek(kdv, 15);
}

QString FisYazimiKurali::GenelToplamSatiri(const QString& tutar, const QString& kdv)
{
    QVariant toplam = Val(VirgulNokta(tutar)) + Val(VirgulNokta(kdv));
    return QStringLiteral("G.Toplam : ") + Tutar2YazTek(toplam, 15);
}
