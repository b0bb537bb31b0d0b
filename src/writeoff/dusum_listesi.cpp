#include "dusum_listesi.h"

#include "dusum_kayit.h"
#include "grid_yazdir.h"
#include "kayit.h"
#include "saat.h"
#include "sql_islevleri.h"
#include "tek_deger.h"
#include "veritabani.h"
#include "yazici.h"

namespace DusumListesi {

namespace {

// A text box: what it holds, the condition it sets when filled and the value
// bound to it.
struct Kutu
{
    QString metin;
    QString kosul;
    QString deger;
};

// The condition from the number's lower bound, replaced by each filled box
// in turn, and the date frame after it.
FisListesi::Komut kosul(const Suzgec& s, const QList<Kutu>& kutular)
{
    FisListesi::Komut k;
    k.sql = QStringLiteral(" WHERE FisNo >= ? ");
    QVariant deger = Val(s.FisNo);
    for (const Kutu& kutu : kutular)
        if (!kutu.metin.isEmpty()) {
            k.sql = kutu.kosul;
            deger = kutu.deger;
        }
    k.degerler << deger;
    if (s.Tarih.isValid()) {
        k.sql += QStringLiteral(" and TarihSayi(Tarih) >= ? ");
        k.degerler << SqlIslevleri::TarihSayisi(s.Tarih);
    }
    if (s.Tarih1.isValid()) {
        k.sql += QStringLiteral(" and  TarihSayi(Tarih) <= ? ");
        k.degerler << SqlIslevleri::TarihSayisi(s.Tarih1);
    }
    return k;
}

QString siraSutunu(const QStringList& sutunlar, int secenek)
{
    return sutunlar.value(secenek - 1, sutunlar.first());
}

}

QDate BitisTarihi(const QString& calisYil)
{
    const QDate bugun = Saat::Bugun();
    const int yil = int(Val(calisYil));
    if (yil < bugun.year())
        return QDate(yil, 12, 31);
    // Counted from the first of the month, so that 29 February of a year
    // without one is the first of March.
    return QDate(yil, bugun.month(), 1).addDays(bugun.day() - 1);
}

FisListesi::Komut MalzemeSorgusu(const Suzgec& s)
{
    static const QStringList siralar = {
        QStringLiteral("FisNo"), QStringLiteral("Tarih"), QStringLiteral("BelgeTarih"),
        QStringLiteral("Ozellik COLLATE TR"), QStringLiteral("Unite"), QStringLiteral("BirimFiyat"),
        QStringLiteral("HesapKod"), QStringLiteral("KimeVerildigi COLLATE TR")};
    // The unit is compared with a text that ends in "%", which a comparison
    // takes as a character like any other.
    FisListesi::Komut k =
        kosul(s, {{s.TeslimAlan, QStringLiteral(" where KimeVerildigi >= ? "), s.TeslimAlan},
                  {s.Ozellik, QStringLiteral(" where Ozellik like ? "), s.Ozellik + u'%'},
                  {s.Unite, QStringLiteral(" where Unite >= ? "), s.Unite + u'%'},
                  {s.HesapKod, QStringLiteral(" where HesapKod like ? "), s.HesapKod + u'%'}});
    k.sql = QStringLiteral("Select Unite, Ozellik, BelgeTarih, FisNo, Tarih, KimeVerildigi, BirimFiyat, Birimi,"
                           "HesapKod,  Satir From FIS ")
            + k.sql + QStringLiteral(" and Mid(HesapKod,1,3) <> '150' ")
            + QStringLiteral(" and FCinss <> 'D' order by ") + siraSutunu(siralar, s.Secenek);
    return k;
}

const QStringList& MalzemeBasliklari()
{
    static const QStringList basliklar = {
        QStringLiteral("Ünite"), QStringLiteral("Özellik-Marka"), QStringLiteral("FaturaTarihi"),
        QStringLiteral("FişNo"), QStringLiteral("Fiş Tarihi"), QStringLiteral("Kime Verildiği"),
        QStringLiteral("B.Fiyat"), QStringLiteral("Birimi"), QStringLiteral("HesapKod"),
        QStringLiteral("Satir")};
    return basliklar;
}

const QList<int>& MalzemeGenislikleri()
{
    static const QList<int> genislikler = {600, 2600, 1000, 600, 1000, 2400, 990, 650, 1300, 400};
    return genislikler;
}

QMap<int, QString> SecilenSatir(Veritabani& genel, const QStringList& satir)
{
    const QString tarih = satir.value(4);
    return {
        {DusumSutun::Unite, satir.value(0).trimmed()},
        {DusumSutun::Ozellik, satir.value(1).trimmed()},
        {DusumSutun::HesapKod, satir.value(8).trimmed()},
        {DusumSutun::MalzAdi, AlanGetir(genel, QStringLiteral("Urun_K"), QStringLiteral("MalzAdi"),
                                        QStringLiteral(" where HesapKod = ? "), {satir.value(8)})},
        {DusumSutun::FisNo, satir.value(3).trimmed()},
        {DusumSutun::Yil, tarih.mid(6, 4)},
        {DusumSutun::Tarih, tarih},
        {DusumSutun::BirimFiyat, satir.value(6)},
        {DusumSutun::Birimi, satir.value(7)},
        {DusumSutun::Satir, satir.value(9)},
    };
}

QStringList GridSatiri(const QMap<int, QString>& hucreler)
{
    QStringList satir(DusumSutun::Sayi);
    for (auto it = hucreler.cbegin(); it != hucreler.cend(); ++it)
        satir[it.key()] = it.value();
    return satir;
}

void MalzemeYazdir(Yazici& p, const Izgara& izgara)
{
    p.Print({QStringLiteral("  Makbuz Kayıtları Listesi    ") + Saat::Bugun().toString(QStringLiteral("dd.MM.yyyy"))});
    p.Print({QStringLiteral("  Fiş Listesi    ")});
    GridYazdirGenis(p, izgara);
    p.EndDoc();
}

QList<QStringList> DusulenSatirlari(Veritabani& vt, const Suzgec& s)
{
    static const QStringList siralar = {
        QStringLiteral("FisNo"), QStringLiteral("Tarih"), QStringLiteral("MalzAdi COLLATE TR"),
        QStringLiteral("Ozellik COLLATE TR"), QStringLiteral("Unite"), QStringLiteral("BirimFiyat")};
    FisListesi::Komut k =
        kosul(s, {{s.KomisyonBaskaniAdi, QStringLiteral(" WHERE KomisyonBaskaniAdi like ? "),
                   s.KomisyonBaskaniAdi + u'%'},
                  {s.MalzAdi, QStringLiteral(" WHERE MalzAdi like ? "), s.MalzAdi + u'%'},
                  {s.Ozellik, QStringLiteral(" where Ozellik like ? "), s.Ozellik + u'%'},
                  {s.Unite, QStringLiteral(" where Unite >= ? "), s.Unite + u'%'}});
    k.sql = QStringLiteral("Select FisNo, Tarih, MalzAdi, BirimFiyat, KomisyonBaskaniAdi, Unite, Ozellik From DUSUM_B ")
            + k.sql + QStringLiteral(" ") + QStringLiteral(" order by ") + siraSutunu(siralar, s.Secenek);
    // In the grid's order: unit, material, description, number, date, price,
    // chair of the commission.
    QList<QStringList> satirlar;
    for (const QStringList& r : vt.Satirlar(k.sql, k.degerler))
        satirlar << QStringList{r[5], r[2], r[6], r[0], r[1], r[3], r[4]};
    return satirlar;
}

const QStringList& DusulenBasliklari()
{
    static const QStringList basliklar = {
        QStringLiteral("Ünite"), QStringLiteral("Malzeme Adi"), QStringLiteral("Özellik"), QStringLiteral("TutankNo"),
        QStringLiteral("Tarih"), QStringLiteral("BirimFiyat"), QStringLiteral("KomisyonBaşkanı")};
    return basliklar;
}

const QList<int>& DusulenGenislikleri()
{
    static const QList<int> genislikler = {700, 2200, 2200, 900, 1100, 1100, 2400};
    return genislikler;
}

}
