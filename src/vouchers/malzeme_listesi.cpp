#include "malzeme_listesi.h"

#include "bicim.h"
#include "grid_yazdir.h"
#include "kayit.h"
#include "sql_islevleri.h"
#include "veritabani.h"
#include "yazici.h"

namespace MalzemeListesi {

namespace {

const QString kayitYok = QStringLiteral("  Kayıt Bulunamadı .. ");

QString siraSutunu(Sira sira)
{
    switch (sira) {
    case Sira::FisNo: return QStringLiteral("FisNo");
    case Sira::Tarih: return QStringLiteral("Tarih");
    case Sira::MalzAdi: return QStringLiteral("MalzAdi");
    case Sira::BirimFiyat: return QStringLiteral("BirimFiyat");
    case Sira::HesapKod: return QStringLiteral("HesapKod");
    case Sira::Ozellik: return QStringLiteral("Ozellik COLLATE TR");
    case Sira::Unite: return QStringLiteral("Unite");
    case Sira::KimeVerildigi: return QStringLiteral("KimeVerildigi COLLATE TR");
    }
    return {};
}

// The write-off controls are read in this order and the last that applies
// decides.
QString hasarKuyrugu(const Kosullar& k)
{
    QString kuyruk = k.HasarCheck ? QStringLiteral(" and FCinss = 'D' order by ")
                                  : QStringLiteral(" and (FCinss IS Null or FCinss = '' ) order by ");
    if (k.Option1)
        kuyruk = QStringLiteral(" and Fcinss <> 'D' order by ");
    if (k.Option2)
        kuyruk = QStringLiteral(" and Fcinss = ''  order by ");
    return kuyruk;
}

QStringList tekSutun(const QString& sql, Veritabani& vt)
{
    QStringList ogeler;
    for (const QStringList& satir : vt.Satirlar(sql))
        ogeler << satir.value(0);
    if (ogeler.isEmpty())
        ogeler << kayitYok;
    return ogeler;
}

}

Komut Liste(const Kosullar& k)
{
    Komut komut;
    // MalzAdi names the empty first column so that its sort option sorts by
    // it, as the list never held a class name column to sort by.
    komut.sql = QStringLiteral("Select '' AS MalzAdi, Ozellik, HesapKod, BirimFiyat, Miktar, Birimi,Cikan, FisNo, "
                               "Tarih, Unite, KimeVerildigi, BelgeTarih, KDV From FIS "
                               " Where TarihSayi(Tarih) >= ? and  TarihSayi(Tarih) <= ?");
    komut.degerler << SqlIslevleri::TarihSayisi(k.Tarih) << SqlIslevleri::TarihSayisi(k.Tarih1);
    if (k.hareket == Hareket::Gelen)
        komut.sql += QStringLiteral(" and val(Miktar) > val(Cikan) ");
    else if (k.hareket == Hareket::Cikan)
        komut.sql += QStringLiteral(" and val(Cikan) > 0 ");
    const auto ekle = [&](const QString& kutu, const QString& parca, const QVariant& deger) {
        if (kutu.isEmpty())
            return;
        komut.sql += parca;
        komut.degerler << deger;
    };
    ekle(k.FisNo, QStringLiteral(" and FisNo >  ? "), Val(k.FisNo));
    ekle(k.BirimFiyat, QStringLiteral(" and val(BirimFiyat) >  ? "), Val(VirgulNokta(k.BirimFiyat)));
    // Compared with = and yet carrying the %: only a unit that literally ends
    // so is listed, as the list always did.
    ekle(k.Unite, QStringLiteral(" and  Unite = ? "), QString(k.Unite + u'%'));
    ekle(k.KimeVerildigi, QStringLiteral(" and KimeVerildigi like ? "), QString(k.KimeVerildigi + u'%'));
    ekle(k.Ozellik, QStringLiteral(" and Ozellik like ? "), QString(k.Ozellik + u'%'));
    ekle(k.HesapKod, QStringLiteral(" and HesapKod like ? "), QString(k.HesapKod + u'%'));
    ekle(k.Ozellik4, QStringLiteral(" and Ozellik = ? COLLATE TR "), k.Ozellik4);
    // FIS has no such column: the database refuses the statement, the screen
    // shows why.
    ekle(k.NeredenGeldigi, QStringLiteral(" and NeredenGeldigi = ? "), k.NeredenGeldigi);
    komut.sql += hasarKuyrugu(k) + siraSutunu(k.sira) + u' '
                 + (k.artan ? QStringLiteral("Asc") : QStringLiteral("Desc"));
    return komut;
}

QStringList Basliklar()
{
    return {QStringLiteral("MalzemeSınıfAdı"), QStringLiteral("Özellik-Marka"), QStringLiteral("HesapKod"),
            QStringLiteral("BirimFiyat"),      QStringLiteral("Miktar"),        QStringLiteral("Birimi"),
            QStringLiteral("Çıkan"),           QStringLiteral("FişNo"),         QStringLiteral("Fiş Tarihi"),
            QStringLiteral("Ünite"),           QStringLiteral("KimeVerildiği"), QStringLiteral("BelgeTarihi"),
            QStringLiteral("KDV")};
}

QList<int> Genislikler()
{
    return {2200, 2600, 1600, 1100, 900, 900, 900, 800, 1100, 800, 1800, 1100, 600};
}

QString SinifAdi(Veritabani& vt, const QString& hesapKod)
{
    QSqlQuery q = vt.Sorgu(QStringLiteral("Select MalzAdi, HesapKod from URUN_K where HesapKod = ? "), {hesapKod});
    return q.next() ? q.value(0).toString() : QString();
}

QStringList Toplamlar(Veritabani& vt, const QString& ozellik)
{
    QSqlQuery q = vt.Sorgu(QStringLiteral("Select ' Gelen :',Sum(val(Miktar)),'   Çıkan :',Sum(val(cikan)),"
                                          "'   Kalan :',Sum(val(Miktar) - val(cikan)) From FIS  "
                                          "Where Ozellik = ? COLLATE TR "),
                           {ozellik});
    QStringList hucreler;
    if (q.next())
        for (int i = 0; i < 6; ++i)
            hucreler << (q.value(i).isNull() ? QString() : SayiMetni(q.value(i)));
    return hucreler;
}

QStringList Ozellikler(Veritabani& vt)
{
    // One item per description: the lines repeat them by the thousand.
    return tekSutun(QStringLiteral("Select DISTINCT Ozellik COLLATE TR from FIS ORDER BY 1"), vt);
}

QStringList NeredenGeldiler(Veritabani& vt)
{
    return tekSutun(QStringLiteral("Select NeredenGeldigi From FIS_B Order by NeredenGeldigi COLLATE TR"), vt);
}

std::optional<int> YaziBoyu(const QString& metin)
{
    const int boy = int(Val(VirgulNokta(metin)));
    if (boy <= 0)
        return std::nullopt;
    return boy;
}

void Yazdir(Yazici& p, const Izgara& liste)
{
    GridYazdir(p, QStringLiteral("Malzeme Listesi  "), liste);
    p.EndDoc();
}

}
