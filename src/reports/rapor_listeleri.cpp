#include "rapor_listeleri.h"

#include "rapor_suzgeci.h"
#include "veritabani.h"

namespace RaporListeleri {

namespace {

// The first column of the rows, a repeat of the row before left out.
QStringList birer(const QList<QStringList>& satirlar)
{
    QStringList degerler;
    for (const QStringList& r : satirlar)
        if (degerler.isEmpty() || degerler.last() != r.at(0))
            degerler << r.at(0);
    return degerler;
}

QList<KodAd> kodAdlar(const QList<QStringList>& satirlar)
{
    QList<KodAd> liste;
    for (const QStringList& r : satirlar)
        if (liste.isEmpty() || liste.last().kod != r.at(0) || liste.last().ad != r.at(1))
            liste.append({r.at(0), r.at(1)});
    return liste;
}

QStringList fisSutunu(Veritabani& ayniyat, const QString& hangi, const QString& sutun)
{
    return birer(ayniyat.Satirlar(QStringLiteral("Select %1 From FIS  where ").arg(sutun)
                                  + RaporSuzgecleri::SinifAyrimi(hangi)
                                  + QStringLiteral("order by %1 COLLATE TR").arg(sutun)));
}

}

QStringList KimeVerildigi(Veritabani& ayniyat, const QString& hangi)
{
    return fisSutunu(ayniyat, hangi, QStringLiteral("KimeVerildigi"));
}

QStringList Ozellik(Veritabani& ayniyat, const QString& hangi)
{
    return fisSutunu(ayniyat, hangi, QStringLiteral("Ozellik"));
}

QList<KodAd> HesapKodlari(Veritabani& genel, const QString& hangi)
{
    return kodAdlar(genel.Satirlar(QStringLiteral("Select HesapKod,MalzAdi from URUN_K where ")
                                   + RaporSuzgecleri::SinifAyrimi(hangi) + QStringLiteral("ORDER BY HesapKod")));
}

QList<KodAd> TumHesapKodlari(Veritabani& genel)
{
    return kodAdlar(genel.Satirlar(QStringLiteral("Select HesapKod,MalzAdi from URUN_K ORDER BY HesapKod Asc")));
}

QList<KodAd> Uniteler(Veritabani& genel)
{
    return kodAdlar(genel.Satirlar(QStringLiteral("Select UniteKod, UniteAd from Unite_K order by UniteAd COLLATE TR")));
}

QStringList Malzemeler(Veritabani& genel, const QString& hangi, const QString& onEk)
{
    QStringList adlar = birer(genel.Satirlar(QStringLiteral("Select MalzAdi from URUN_K where ")
                                                 + RaporSuzgecleri::SinifAyrimi(hangi)
                                                 + QStringLiteral(" and MalzAdi like ? ORDER BY MalzAdi COLLATE TR"),
                                             {QString(onEk + u'%')}));
    adlar.removeAll(QString());
    return adlar;
}

QStringList Adlar(const QList<KodAd>& liste)
{
    QStringList adlar;
    for (const KodAd& k : liste)
        adlar << k.ad;
    return adlar;
}

QStringList KodluAdlar(const QList<KodAd>& liste)
{
    QStringList satirlar;
    for (const KodAd& k : liste)
        satirlar << k.kod + QStringLiteral("  ") + k.ad;
    return satirlar;
}

QString Kodu(const QString& kodluAd)
{
    return kodluAd.section(QStringLiteral("  "), 0, 0).trimmed();
}

}
