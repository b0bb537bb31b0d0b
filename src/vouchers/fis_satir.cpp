#include "fis_satir.h"

#include "fis_kayit.h"
#include "grid_yazdir.h"
#include "kayit.h"
#include "veritabani.h"
#include "yazici.h"

namespace {

// The distinct non-empty values of a sorted one-column query: a value equal
// to the one before it is left out.
QStringList farkliDegerler(QSqlQuery q)
{
    QStringList degerler;
    while (q.next()) {
        const QString deger = q.value(0).toString();
        if (!deger.isEmpty() && (degerler.isEmpty() || degerler.last() != deger))
            degerler << deger;
    }
    return degerler;
}

FisSatir::HareketListesi hareketler(Veritabani& vt, const QString& sql, const QString& deger)
{
    FisSatir::HareketListesi liste;
    QSqlQuery q = vt.Sorgu(sql, {deger});
    while (q.next()) {
        QStringList satir;
        for (int i = 0; i < 8; ++i)
            satir << q.value(i).toString();
        liste.Gelen += Val(satir.at(3));
        liste.Cikan += Val(satir.at(4));
        liste.satirlar << satir;
    }
    liste.Kalan = liste.Gelen - liste.Cikan;
    return liste;
}

}

QList<IzgaraSutunu> FisSatir::Sutunlar()
{
    using enum EditorTuru;
    const QString kutu = QStringLiteral("TE1");
    return {
        {QStringLiteral("Sıra"), 4, Metin, kutu, QString(60, u' ')},
        {QStringLiteral(" 3.Detay Kod"), 1850, Liste, QStringLiteral("HesKod"),
         QStringLiteral(" Açılır Liste den Hesap Kod(3.Detay Kod) seç veya Yaz ve Enter.  Malzeme Sınıf Listesini F10 "
                        "ile Ekrana getirip, seçebilirsiniz.")},
        {QStringLiteral("Malzeme Sınıfı"), 2500, Liste, QStringLiteral("Detay3"),
         QStringLiteral(" Açılır Liste den Malzeme Sınıf Adını seç. ")},
        {QStringLiteral("Özellik-Marka"), 3400, Metin, kutu,
         QStringLiteral(" Malzeme Marka-Özelliğini Yazınız. ilk Harfi Belirtip F10 ile Süzme Yapabilirsiniz.")},
        {QStringLiteral("Birimi"), 910, Metin, kutu,
         QStringLiteral(" Ölçü Birimi (Adet, Kg, Metre, Litre, Top vb.) Yazınız.  ")},
        {QStringLiteral("Miktarı"), 1000, Metin, kutu,
         QStringLiteral(" Malzeme Miktarı-Adetini Yazınız .                                      ")},
        {QStringLiteral("BirimFiyat"), 1220, Metin, kutu,
         QStringLiteral(" Birim Fiyatı Yazınız.(Bir Adetinin Fiyatını)")},
        {QStringLiteral("FaturaTarih"), 1300, Tarih, QStringLiteral("TDate"),
         QStringLiteral(" Fatura-Tutanak-Belge-Makbuz-Hibe-TeslimEvrakı  vs. Tarihini Yazınız.  ")},
        {QStringLiteral("Ünite"), 660, Liste, QStringLiteral("UniteAd"),
         QStringLiteral(" Malzemenin Verildiği Üniteyi Seçin veya ÜniteKod Yazınız. Malzeme Ambarda kalacaksa Ünite "
                        "Kod yazmayınız.  ")},
        {QStringLiteral("İşlem"), 660, Liste, QStringLiteral("IslemTur"),
         QStringLiteral(" İşlem Türünü Seçiniz. F4 ile açılır listeden seçebilirsiniz.")},
        {QStringLiteral("ÇıkanMiktar"), 1000, Metin, kutu,
         QStringLiteral(" Birime(veya Kişiye) verilen Çıkış Miktarını Yazınız.  ")},
        {QStringLiteral("Kime Verildiği"), 2300, Metin, kutu,
         QStringLiteral(" Malzemeyi Kurum içinde Teslim Alan veya Kullanacak olanı Yazınız.  ")},
        {QStringLiteral("AmbarNo"), 630, Metin, kutu,
         QStringLiteral(" Ambar No Yazınız.(Tek ambar kullanıyorsanız Boş bırakılabilir). ")},
        // Speaks of the special code though the column holds the tax rate.
        {QStringLiteral("KDV"), 630, Metin, kutu,
         QStringLiteral(" Döküm aşmasında Filitre(Süzgeç) olabilecek Kod Yazınız.(Boş bırakılabilir). ")},
        {QStringLiteral("Ö.Kod"), 20, Metin, kutu, QString()},
        {QString(), 700, Metin, kutu, QString()},
        {QString(), 20, Metin, kutu, QString()},
    };
}

FisModeli::FisModeli(QObject* ebeveyn) : IzgaraModeli(FisSatir::SatirSayisi, FisSatir::Sutunlar(), ebeveyn) {}

FisSatir::EnterSonucu FisSatir::GridEnter(Hucre hucre, const QString& birimFiyat)
{
    // Kept from the days when the price column also took an account number.
    static const QStringList sozcukler = {
        QStringLiteral("KDV    "), QStringLiteral("Avans  "),     QStringLiteral("Borç   "),    QStringLiteral("İlçe.Verilen"),
        QStringLiteral("Emanet "), QStringLiteral("KıymetliAyn"), QStringLiteral("NazımHesap"),
    };
    EnterSonucu sonuc{hucre, QString()};
    Hucre& h = sonuc.hucre;
    if (h.sutun > SonSutun) {
        ++h.satir;
        h.sutun = 0;
    }
    if (h.sutun < SonSutun)
        ++h.sutun;
    if (h.sutun == FisSutun::BelgeTarih) {
        const int kod = birimFiyat.size() == 1 ? birimFiyat.at(0).digitValue() : -1;
        if (kod >= 2 && kod <= 8)
            sonuc.tarih = sozcukler.at(kod - 2);
    }
    if (h.sutun < FisSutun::Cikan)
        ++h.sutun;
    return sonuc;
}

bool FisSatir::AsagiKopyala(QList<QStringList>& satirlar, Hucre hucre)
{
    const bool sinifta = hucre.sutun == FisSutun::HesapKod || hucre.sutun == FisSutun::MalzAdi;
    return SatirKopyala(satirlar, hucre, sinifta ? FisSutun::KDV : hucre.sutun);
}

bool FisSatir::SatirKopyala(QList<QStringList>& satirlar, Hucre hucre, int beraber)
{
    const QStringList& ust = satirlar.at(hucre.satir - 1);
    QStringList& alt = satirlar[hucre.satir];
    alt[beraber] = ust.at(beraber);
    if (ust.at(hucre.sutun).isEmpty())
        return false;
    alt[hucre.sutun] = ust.at(hucre.sutun);
    return true;
}

void FisSatir::SatirSil(QList<QStringList>& satirlar, int satir)
{
    satirlar.removeAt(satir - 1);
    satirlar.append(QStringList(FisSutun::Sayi, QString()));
}

QStringList FisSatir::HesKodListesi(Veritabani& vt)
{
    QSqlQuery q = vt.Sorgu(QStringLiteral("Select HesapKod, MalzAdi from URUN_K Order by MalzAdi COLLATE TR"));
    QStringList liste;
    while (q.next())
        if (!q.value(0).toString().isEmpty())
            liste << q.value(0).toString() + u' ' + q.value(1).toString().trimmed();
    return liste;
}

QStringList FisSatir::SinifAdlari(Veritabani& vt)
{
    return farkliDegerler(vt.Sorgu(QStringLiteral("Select MalzAdi from URUN_K ORDER BY MalzAdi COLLATE TR")));
}

QStringList FisSatir::UniteAdlari(Veritabani& vt)
{
    QSqlQuery q = vt.Sorgu(QStringLiteral("Select UniteKod, UniteAd from Unite_K Order by UniteAd COLLATE TR"));
    QStringList adlar;
    while (q.next())
        adlar << q.value(1).toString();
    return adlar;
}

QStringList FisSatir::TeslimAlanlar(Veritabani& vt, const QString& fcins)
{
    return farkliDegerler(
        vt.Sorgu(QStringLiteral("Select TeslimAlan From FIS_B where Fcins = ? ORDER BY TeslimAlan COLLATE TR"),
                 {fcins}));
}

QStringList FisSatir::NeredenGeldiler(Veritabani& vt, const QString& fcins)
{
    return farkliDegerler(vt.Sorgu(
        QStringLiteral("Select NeredenGeldigi From FIS_B where Fcins = ?  Order by NeredenGeldigi COLLATE TR"),
        {fcins}));
}

std::optional<FisSatir::Sinif> FisSatir::KodlaSinif(Veritabani& vt, const QString& secilen)
{
    QSqlQuery q = vt.Sorgu(QStringLiteral("Select HesapKod, MalzAdi, KDV1,Birimi from URUN_K Where HesapKod = ? "
                                          "ORDER BY HesapKod "),
                           {secilen.left(13)});
    if (!q.next())
        return std::nullopt;
    return Sinif{q.value(0).toString().trimmed(), q.value(1).toString().trimmed(), q.value(2).toString().trimmed(),
                 q.value(3).toString()};
}

std::optional<FisSatir::Sinif> FisSatir::AdlaSinif(Veritabani& vt, const QString& ad)
{
    QSqlQuery q =
        vt.Sorgu(QStringLiteral("Select HesapKod, MalzAdi, KDV1 from URUN_K Where MalzAdi = ? COLLATE TR "), {ad});
    if (!q.next())
        return std::nullopt;
    return Sinif{q.value(0).toString(), q.value(1).toString(), q.value(2).toString(), QString()};
}

std::optional<QString> FisSatir::MalzAdGetir(Veritabani& vt, const QString& hesapKod)
{
    QSqlQuery q = vt.Sorgu(QStringLiteral("Select MalzAdi, HesapKod from URUN_K where HesapKod = ? "), {hesapKod});
    if (!q.next())
        return std::nullopt;
    return q.value(0).toString();
}

std::optional<QString> FisSatir::UniteKodu(Veritabani& vt, const QString& uniteAd)
{
    QSqlQuery q =
        vt.Sorgu(QStringLiteral("Select UniteKod, UniteAd from Unite_K Where UniteAd = ? COLLATE TR "), {uniteAd});
    if (!q.next())
        return std::nullopt;
    return q.value(0).toString();
}

QStringList FisSatir::HareketBasliklari()
{
    return {QStringLiteral("MalzemeÖzellik"), QStringLiteral("BirimFiyat"), QStringLiteral("FişNo"),
            QStringLiteral("Miktar"),         QStringLiteral("Çıkan"),      QStringLiteral("Tarih"),
            QStringLiteral("Ünite"),          QStringLiteral("KimeVerildiği")};
}

QList<int> FisSatir::HareketGenislikleri()
{
    return {3400, 1220, 700, 1000, 1000, 1300, 660, 2300};
}

FisSatir::HareketListesi FisSatir::HesapHareketListe(Veritabani& vt, const QString& hesapKod)
{
    return hareketler(vt,
                      QStringLiteral("Select Ozellik, BirimFiyat, FisNo, Miktar,Cikan, Tarih, Unite,KimeVerildigi "
                                     "From FIS  Where HesapKod = ? and (FCinss IS Null or FCinss = '' ) "
                                     "order by FisNo, Tarih "),
                      hesapKod);
}

FisSatir::HareketListesi FisSatir::OzellikHareketListe(Veritabani& vt, const QString& ozellik)
{
    return hareketler(vt,
                      QStringLiteral("Select Ozellik, BirimFiyat, FisNo, Miktar,Cikan, Tarih, Unite,KimeVerildigi "
                                     "From FIS  Where Ozellik = ? COLLATE TR order by FisNo, Tarih "),
                      ozellik);
}

void FisSatir::HareketYazdir(Yazici& p, const QString& hesapKod, const QString& malzAdi, const QString& fisTarihi,
                             const Izgara& liste, const QString& toplam)
{
    GridYazdir(p, hesapKod + QStringLiteral(" - ") + malzAdi + QStringLiteral("      Tarih :") + fisTarihi.mid(6, 4),
               liste);
    p.Print({QStringLiteral("Toplam :") + toplam});
    p.EndDoc();
}
