#include "fis_listesi.h"

#include "grid_yazdir.h"
#include "kayit.h"
#include "sql_islevleri.h"
#include "yazici.h"

#include <array>

QString FisListesi::SiraSutunu(int secenek, const QString& onceki)
{
    static const std::array<QString, 7> sutunlar{
        QStringLiteral("FisNo"),      QStringLiteral("Tarih"), QStringLiteral("Ozellik COLLATE TR"),
        QStringLiteral("TeslimAlan COLLATE TR"), QStringLiteral("Unite"), QString(),
        QStringLiteral("NeredenGeldigi COLLATE TR")};
    if (secenek < 1 || secenek > int(sutunlar.size()) || sutunlar[secenek - 1].isEmpty())
        return onceki;
    return sutunlar[secenek - 1];
}

FisListesi::Komut FisListesi::Sorgu(const Suzgec& s)
{
    // Each filled filter replaces the condition before it: the last one in
    // this order wins and the filters never combine.
    QString kosul = QStringLiteral(" WHERE FisNo >= ? ");
    QVariant deger = Val(s.FisNo);
    const std::array<std::pair<QString, QString>, 4> metinler{{{QStringLiteral("TeslimAlan"), s.TeslimAlan},
                                                               {QStringLiteral("Ozellik"), s.Ozellik},
                                                               {QStringLiteral("BelgeSayi"), s.BelgeSayi},
                                                               {QStringLiteral("NeredenGeldigi"), s.NeredenGeldigi}}};
    for (const auto& [sutun, metin] : metinler)
        if (!metin.isEmpty()) {
            kosul = QStringLiteral(" WHERE ") + sutun + QStringLiteral(" like ? ");
            deger = metin + u'%';
        }
    Komut k;
    k.degerler << deger;
    QString tarihler;
    if (s.Tarih.isValid()) {
        tarihler += QStringLiteral(" and TarihSayi(Tarih) >= ? ");
        k.degerler << SqlIslevleri::TarihSayisi(s.Tarih);
    }
    if (s.Tarih1.isValid()) {
        tarihler += QStringLiteral(" and  TarihSayi(Tarih) <= ? ");
        k.degerler << SqlIslevleri::TarihSayisi(s.Tarih1);
    }
    k.degerler << s.FCins1;
    k.sql = QStringLiteral("Select FisNo, Tarih, Ozellik, TeslimAlan, BelgeTarih, BelgeSayi, NeredenGeldigi, Fcins "
                           "From FIS_B ")
            + kosul + tarihler + QStringLiteral(" and Fcins = ? ") + QStringLiteral(" order by ") + s.SiraSutunu
            + u' ' + (s.Artan ? QStringLiteral("Asc") : QStringLiteral("Desc"));
    return k;
}

const QStringList& FisListesi::Basliklar()
{
    static const QStringList basliklar{QStringLiteral("FişNo"),       QStringLiteral("Tarih"),
                                       QStringLiteral("Özellik-Marka"), QStringLiteral("Teslim Alan"),
                                       QStringLiteral("BelgeTarih"),  QStringLiteral("BelgeSayı"),
                                       QStringLiteral("NeredenGeldigi")};
    return basliklar;
}

const QList<int>& FisListesi::Genislikler()
{
    static const QList<int> genislikler{700, 1100, 2200, 2200, 1100, 1000, 2200, 0};
    return genislikler;
}

void FisListesi::ListeYazdir(Yazici& p, const Izgara& izgara)
{
    GridYazdir(p, QStringLiteral("  Fiş Listesi    "), izgara);
    p.EndDoc();
}
