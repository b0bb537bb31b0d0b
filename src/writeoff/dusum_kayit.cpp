#include "dusum_kayit.h"

#include "bicim.h"
#include "dusum_yazimi.h"
#include "fis_kayit.h"
#include "fis_toplam.h"
#include "kayit.h"
#include "tek_deger.h"
#include "veri.h"
#include "veritabani.h"

QString DusumEkrani::Hucre(int satir, int sutun) const
{
    return SatirHucresi(Satirlar, satir, sutun);
}

namespace {

// The number and the working year find a head, whatever its kind.
const QString basKosulu = QStringLiteral(" where FisNo = ? and Mid(Tarih,7,4) = ? ");

// The line of FIS a grid row names: voucher number (column 8), the year of
// the voucher date (characters 7 to 10 of column 7), line number (column 10)
// and code (column 1). The voucher's kind plays no part. Of several such
// lines the first one is meant.
qint64 kaynakSatir(Veritabani& vt, const DusumEkrani& d, int satir)
{
    const QString fisNo = d.Hucre(satir, DusumSutun::FisNo);
    const QString yil = d.Hucre(satir, DusumSutun::Tarih).mid(6, 4);
    const QString sira = d.Hucre(satir, DusumSutun::Satir);
    const QString hesapKod = d.Hucre(satir, DusumSutun::HesapKod);
    const std::optional<qint64> no = FisKayit::PozitifTamSayi(fisNo);
    const std::optional<qint64> siraNo = FisKayit::PozitifTamSayi(sira);
    if (!no || !siraNo)
        throw Hata(QStringLiteral("%1. satırdaki fiş numarası (\"%2\") ya da satır numarası (\"%3\") bir sayı değil; "
                                  "hiçbir şey kaydedilmedi.")
                       .arg(satir)
                       .arg(fisNo.trimmed(), sira.trimmed()));
    QSqlQuery q = vt.Sorgu(QStringLiteral("Select rowid From FIS where FisNo = ? AND mid(Tarih, 7, 4) = ? "
                                          "AND Satir = ? AND HesapKod = ? order by rowid"),
                           {*no, yil, *siraNo, hesapKod});
    if (!q.next())
        throw Hata(QStringLiteral("%1. satırdaki fiş satırı bulunamadı: %2 yılının %3 nolu fişinde %4. satır, "
                                  "\"%5\" kodlu; hiçbir şey kaydedilmedi.")
                       .arg(satir)
                       .arg(yil)
                       .arg(*no)
                       .arg(*siraNo)
                       .arg(hesapKod));
    return q.value(0).toLongLong();
}

}

QList<IzgaraSutunu> DusumKayit::Sutunlar()
{
    using enum EditorTuru;
    const QString kutu = QStringLiteral("TE1");
    return {
        {QStringLiteral("Ünite"), 650, Liste, QStringLiteral("UniteAd"), QString()},
        {QStringLiteral(" 3.Detay Kod"), 1650, Liste, QStringLiteral("HesKod"),
         QStringLiteral(" Hesap Kod Yaz ve Enter. [...] ile Hesap Listesini Ekrana getirip, seçebilirsiniz. ")},
        {QStringLiteral("Sınıf Adı"), 2200, Liste, QStringLiteral("Detay3"),
         QStringLiteral(" Malzeme Adını Yazınız. ")},
        {QStringLiteral("Özellik-Marka"), 2000, Metin, kutu, QStringLiteral(" Malzeme Marka-Özelliğini Yazınız. ")},
        {QStringLiteral("Birimi"), 810, Metin, kutu,
         QStringLiteral(" Ölçü Birimi (Adet, Kg, Metre, Litre, Top vb.) Yazınız.  ")},
        {QStringLiteral("DüşümMiktar"), 1350, Metin, kutu,
         QStringLiteral(" Malzeme Miktarı-Adetini Yazınız .                                      ")},
        {QStringLiteral("BirimFiyat"), 1220, Metin, kutu, QStringLiteral(" Birim Fiyatı Yazınız.")},
        {QStringLiteral("Tarih"), 1200, Tarih, QStringLiteral("TDate"),
         QStringLiteral(" Fatura-Tutanak-Belge-Makbuz vs. Tarihıni Yazınız.  ")},
        // The last four hints are those of the voucher's columns of the same
        // number, not of what these columns hold.
        {QStringLiteral("FisNo"), 900, Metin, kutu,
         QStringLiteral(" Malzemenin Verildiği Üniteyi  Seçin veya ÜniteKod Yazınız. Malzeme Ambarda kalacaksa Ünite "
                        "Kod yazmayınız.  ")},
        {QStringLiteral("Yıl"), 700, Metin, kutu, QStringLiteral(" Fiş Tarihini Yazınız. ")},
        {QStringLiteral("Satır"), 700, Metin, kutu,
         QStringLiteral(" Malzemenin bulunduğu Fiş de kaçıncı satırda bulunduğunu Yazınız. ")},
        {QStringLiteral("SicilNo"), 1700, Metin, kutu, QStringLiteral(" SicilNo yu siz Yazmayınız.  ")},
        {QString(), 20, Metin, kutu, QString()},
        {QString(), 20, Metin, kutu, QString()},
        {QString(), 20, Metin, kutu, QString()},
        {QString(), 20, Metin, kutu, QString()},
        {QString(), 20, Metin, kutu, QString()},
    };
}

int DusumKayit::Sonk(Veritabani& vt, const QString& yil)
{
    return int(EnBuyukSayi(vt, QStringLiteral("DUSUM_B"), QStringLiteral("FisNo"),
                           QStringLiteral(" where mid(Tarih,7,4) = ? "), {yil}))
           + 1;
}

DusumSonucu DusumKayit::Kaydet(Veritabani& vt, const DusumEkrani& d, const std::function<bool()>& aySorusu)
{
    const std::optional<qint64> no = FisKayit::PozitifTamSayi(d.FisNo);
    if (!no)
        return DusumSonucu::FisNoYok;
    if (!FisKayit::AyOnayi(d.CalisAy, aySorusu))
        return DusumSonucu::Vazgecildi;

    Islem islem(vt);
    // The head carries a copy of the first row, the one the lists show.
    const QVariantList bas = {*no,
                              d.Tarih,
                              d.KomisyonBaskaniAdi.trimmed(),
                              d.KomisyonBaskaniUnvani.trimmed(),
                              d.UyeAdi.trimmed(),
                              d.UyeUnvani.trimmed(),
                              QString(),
                              d.Hucre(1, DusumSutun::MalzAdi).trimmed().left(25),
                              d.Hucre(1, DusumSutun::Ozellik).trimmed().left(25),
                              d.Hucre(1, DusumSutun::BirimFiyat).trimmed().left(20),
                              d.Hucre(1, DusumSutun::Unite).trimmed().left(6)};
    QSqlQuery var = vt.Sorgu(QStringLiteral("select rowid from DUSUM_B") + basKosulu, {*no, d.CalisYil});
    if (var.next()) {
        vt.Hazir(QStringLiteral("update DUSUM_B set FisNo = ?, Tarih = ?, KomisyonBaskaniAdi = ?, "
                                "KomisyonBaskaniUnvani = ?, UyeAdi = ?, UyeUnvani = ?, FCins = ?, MalzAdi = ?, "
                                "Ozellik = ?, BirimFiyat = ?, Unite = ? where rowid = ?"))
            .Calistir(bas + QVariantList{var.value(0)});
    } else {
        vt.Hazir(QStringLiteral("insert into DUSUM_B (FisNo, Tarih, KomisyonBaskaniAdi, KomisyonBaskaniUnvani, "
                                "UyeAdi, UyeUnvani, FCins, MalzAdi, Ozellik, BirimFiyat, Unite) "
                                "values (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"))
            .Calistir(bas);
    }

    // The marks: the quantity replaces what the line had given out, and the
    // write-off takes the place of the acceptance minute.
    HazirKomut& isaretle = vt.Hazir(
        QStringLiteral("update FIS set Cikan = ?, KabulTarih = ?, KabulSayi = ?, FCinss = 'D' where rowid = ?"));
    for (int i = 1; i <= d.Satirlar.size(); ++i) {
        if (d.Hucre(i, DusumSutun::HesapKod).isEmpty())
            continue;
        isaretle.Calistir({d.Hucre(i, DusumSutun::Miktar).trimmed().left(14), d.Tarih.trimmed(), *no,
                           kaynakSatir(vt, d, i)});
    }
    islem.Onayla();
    return DusumSonucu::Kaydedildi;
}

bool DusumKayit::Getir(Veritabani& vt, DusumEkrani& d)
{
    if (d.FisNo.trimmed().isEmpty())
        return false;
    QSqlQuery q = vt.Sorgu(QStringLiteral("Select FisNo, Tarih, KomisyonBaskaniAdi, KomisyonBaskaniUnvani, UyeAdi, "
                                          "UyeUnvani, FCins From DUSUM_B")
                               + basKosulu,
                           {FisKayit::FisNoSayisi(d.FisNo), d.CalisYil});
    if (!q.next())
        return false;
    d.FisNo = q.value(0).toString();
    d.Tarih = q.value(1).toString();
    d.KomisyonBaskaniAdi = q.value(2).toString();
    d.KomisyonBaskaniUnvani = q.value(3).toString();
    d.UyeAdi = q.value(4).toString();
    d.UyeUnvani = q.value(5).toString();
    d.FCins = q.value(6).toString();
    return true;
}

QList<QStringList> DusumKayit::Guncelle(Veritabani& ayniyat, Veritabani& genel, const QString& fisNo,
                                        const QString& yil)
{
    using namespace DusumSutun;
    // The number is stored as the text of an integer.
    QSqlQuery q = ayniyat.Sorgu(QStringLiteral("Select FisNo, Unite, Tarih, HesapKod, Satir, SicilNo, Birimi, Cikan, "
                                               "BirimFiyat, Ozellik From FIS Where KabulSayi = ? and "
                                               "Mid(KabulTarih,7,4) = ? and Fcinss = 'D' Order by Satir "),
                                {QString::number(FisKayit::FisNoSayisi(fisNo)), yil});
    QList<QStringList> satirlar;
    while (q.next()) {
        QStringList s(Sayi);
        s[FisNo] = q.value(0).toString();
        s[Unite] = q.value(1).toString();
        s[Tarih] = q.value(2).toString();
        s[Yil] = s[Tarih].mid(6, 4);
        s[HesapKod] = q.value(3).toString();
        s[Satir] = q.value(4).toString();
        s[SicilNo] = q.value(5).toString();
        s[Birimi] = q.value(6).toString();
        s[Miktar] = q.value(7).toString();
        s[BirimFiyat] = q.value(8).toString();
        s[Ozellik] = q.value(9).toString();
        satirlar << s;
    }
    for (QStringList& s : satirlar)
        s[MalzAdi] = AlanGetir(genel, QStringLiteral("Urun_K"), QStringLiteral("MalzAdi"),
                               QStringLiteral(" where HesapKod = ? "), {s[HesapKod]});
    return satirlar;
}

void DusumKayit::Sil(Veritabani& vt, const DusumEkrani& d)
{
    if (Val(d.FisNo) == 0)
        return;
    vt.Calistir(QStringLiteral("delete from DUSUM_B where FisNo = ? and Fcins = ?"),
                {FisKayit::FisNoSayisi(d.FisNo), d.FCins});
}

DusumKayit::AraToplamlar DusumKayit::AraToplam(const DusumEkrani& d)
{
    // The rows that count add up as the lines of an entry voucher do.
    FisEkrani sayilan;
    sayilan.Hangi = QStringLiteral("G");
    for (int i = 1; i <= d.Satirlar.size(); ++i) {
        const QString miktar = d.Hucre(i, DusumSutun::Miktar);
        const QString fiyat = d.Hucre(i, DusumSutun::BirimFiyat);
        if (miktar.isEmpty() || fiyat.isEmpty())
            continue;
        QStringList satir(FisSutun::Sayi);
        satir[FisSutun::Miktar] = miktar;
        satir[FisSutun::BirimFiyat] = fiyat;
        sayilan.Satirlar << satir;
    }
    const FisToplam::AraToplamlar ara = FisToplam::AraToplam(sayilan);
    return {ara.Text2, ara.Text3};
}

double DusumKayit::KdvToplam(const DusumEkrani& d)
{
    return FisToplam::KdvTopla([&d](int i, int sutun) { return d.Hucre(i, sutun); }, DusumSutun::Miktar,
                               DusumSutun::BirimFiyat, DusumSutun::KDV);
}

DusumYazimi DusumKayit::KayittanYazim(Veri& veri, const QString& fisNo, const QString& yil)
{
    DusumYazimi yazim;
    DusumEkrani& d = yazim.d;
    d.FisNo = fisNo;
    d.CalisYil = yil;
    if (!Getir(veri.Ayniyat(), d))
        throw Hata(QStringLiteral("%1 yılında %2 nolu düşüm tutanağı bulunamadı.").arg(yil, fisNo));
    d.Satirlar = Guncelle(veri.Ayniyat(), veri.Genel(), d.FisNo, yil);
    yazim.Text2 = AraToplam(d).Text2;
    yazim.KDVTOP = SayiMetni(KdvToplam(d));
    return yazim;
}

FisSatir::HareketListesi DusumKayit::HesapHareketListe(Veritabani& vt, const QString& hesapKod)
{
    FisSatir::HareketListesi liste;
    liste.satirlar = vt.Satirlar(QStringLiteral("Select Ozellik, BirimFiyat, FisNo, HesapKod, Tarih, Unite From FIS  "
                                                "Where HesapKod = ? order by FisNo, Tarih "),
                                 {hesapKod});
    return liste;
}

QStringList DusumKayit::HareketBasliklari()
{
    return {QStringLiteral("Özellik"), QStringLiteral("BirimFiyat"), QStringLiteral("FişNo"),
            QStringLiteral("HesapKod"), QStringLiteral("Tarih"), QStringLiteral("Ünite")};
}

QList<int> DusumKayit::HareketGenislikleri()
{
    return {2500, 1100, 680, 1400, 1000, 800};
}

QStringList DusumKayit::KomisyonDegerleri(Veritabani& vt, const QString& alan, const QString& fcins)
{
    static const QStringList alanlar = {QStringLiteral("KomisyonBaskaniAdi"), QStringLiteral("KomisyonBaskaniUnvani"),
                                        QStringLiteral("UyeAdi"), QStringLiteral("UyeUnvani")};
    if (!alanlar.contains(alan))
        throw Hata(QStringLiteral("\"%1\" düşüm tutanağının komisyon alanlarından biri değil.").arg(alan));
    QSqlQuery q =
        vt.Sorgu(QStringLiteral("Select ") + alan + QStringLiteral(" From DUSUM_B where Fcins = ? "), {fcins});
    QStringList degerler;
    QString onceki;
    while (q.next()) {
        const QString deger = q.value(0).toString().trimmed();
        if (deger != onceki)
            degerler << deger;
        onceki = deger;
    }
    return degerler;
}
