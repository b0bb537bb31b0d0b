#include "rapor_suzgeci.h"

#include "kayit.h"
#include "saat.h"
#include "sql_islevleri.h"

namespace RaporSuzgecleri {

RaporSuzgeci Acilis(const QString& calisYil, const QString& hangi)
{
    const QDate bugun = Saat::Bugun();
    RaporSuzgeci s;
    if (hangi == u"D") {
        s.Tarih = QDate(1900, 1, 1);
        s.Tarih1 = bugun;
        return s;
    }
    const int yil = int(Val(calisYil));
    s.Tarih = QDate(yil, 1, 1);
    if (yil > bugun.year())
        s.Tarih1 = QDate(yil, 12, 31);
    else {
        const QDate gun(yil, bugun.month(), bugun.day());
        s.Tarih1 = gun.isValid() ? gun : bugun;
    }
    return s;
}

QString SinifAyrimi(const QString& hangi)
{
    return hangi == u"D" ? QStringLiteral("Mid(HesapKod, 1, 3) <> '150' ")
                         : QStringLiteral("Mid(HesapKod, 1, 3) = '150' ");
}

SqlParcasi SinifKosulu(const RaporSuzgeci& s, const QString& hangi)
{
    SqlParcasi k{SinifAyrimi(hangi), {}};
    const QString malzeme = s.TekMalzeme.trimmed();
    if (!malzeme.isEmpty()) {
        k.sql += QStringLiteral(" and MalzAdi = ? ");
        k.degerler << malzeme;
    }
    if (!s.HesapKod5.isEmpty() || !s.HesapKod6.isEmpty()) {
        k.sql += QStringLiteral(" and HesapKod between ? and ?  ");
        k.degerler << s.HesapKod5 << s.HesapKod6;
    }
    if (!s.SonrakiSinif.isEmpty()) {
        k.sql += QStringLiteral(" and HesapKod > ?  ");
        k.degerler << s.SonrakiSinif;
    }
    return k;
}

SqlParcasi SatirKosulu(const RaporSuzgeci& s)
{
    SqlParcasi k{QStringLiteral("TarihSayi(Tarih) >= ? "), {SqlIslevleri::TarihSayisi(s.Tarih)}};
    if (s.Tarih1.isValid()) {
        k.sql += QStringLiteral(" and TarihSayi(Tarih) <= ? ");
        k.degerler << SqlIslevleri::TarihSayisi(s.Tarih1);
    }
    // The number goes to the column as typed; a text that is no number
    // matches no line.
    if (!s.TumAmbarlar && !s.AmbarNo.isEmpty() && s.AmbarNo != u" " && s.AmbarNo != u"0") {
        k.sql += QStringLiteral(" and AmbarNo = ? ");
        k.degerler << s.AmbarNo.trimmed();
    }
    // The texts as the combo boxes give them, blanks included.
    const std::pair<QString, QString> kutular[] = {{QStringLiteral(" and Unite = ? "), s.Unite},
                                                    {QStringLiteral(" and KimeVerildigi = ? "), s.KimeVerildigi},
                                                    {QStringLiteral(" and Ozellik = ? "), s.Ozellik}};
    for (const auto& [kosul, deger] : kutular)
        if (!deger.trimmed().isEmpty()) {
            k.sql += kosul;
            k.degerler << deger;
        }
    return k;
}

}
