#include "sema.h"

#include "saat.h"

#include <QFile>
#include <QStringList>
#include <QTextStream>

namespace {

// Text columns compare and sort the Turkish way, without regard to case, as
// the engine the data came from did. Quantities, prices and dates are text.
const char* const genelTablolar[] = {
    "CREATE TABLE IF NOT EXISTS Sabit ("
    " Anahtar INTEGER,"
    " Muhasebeci1 TEXT COLLATE TR, Muhasebeci2 TEXT COLLATE TR,"
    " AyniyatMemuru1 TEXT COLLATE TR, AyniyatMemuru2 TEXT COLLATE TR,"
    " itaAmiri TEXT COLLATE TR, itaAmiriAd TEXT COLLATE TR,"
    " AmbarMemur TEXT COLLATE TR, AmbarMemurAd TEXT COLLATE TR,"
    " SubeMudur1 TEXT COLLATE TR, SubeMudur2 TEXT COLLATE TR,"
    " HarcamaYetkilisi1 TEXT COLLATE TR, HarcamaYetkilisi2 TEXT COLLATE TR,"
    " UstYonetici1 TEXT COLLATE TR, UstYonetici2 TEXT COLLATE TR,"
    " MuhasebeBirimiAdi TEXT COLLATE TR, MuhasebeBirimiKod TEXT COLLATE TR,"
    " KurumAdi TEXT COLLATE TR, KurumKod TEXT COLLATE TR,"
    " ilAdi TEXT COLLATE TR, ilKod TEXT COLLATE TR,"
    " BirimAd TEXT COLLATE TR, BirimKod TEXT COLLATE TR,"
    " KDV1 TEXT COLLATE TR, FutFedOran TEXT COLLATE TR, FedOran TEXT COLLATE TR,"
    " DamgaOran1 TEXT COLLATE TR, DamgaOran2 TEXT COLLATE TR, DamgaOran3 TEXT COLLATE TR,"
    " DamSinir1 TEXT COLLATE TR, DamSinir2 TEXT COLLATE TR, DamSinir3 TEXT COLLATE TR,"
    " LigSponsoru TEXT COLLATE TR, Sezon TEXT COLLATE TR, Sezon1 TEXT COLLATE TR,"
    " CalisYil NUMERIC, CalisAy NUMERIC,"
    " SayimBaskan TEXT COLLATE TR, SayimBaskanUnvan TEXT COLLATE TR,"
    " SayimUye1 TEXT COLLATE TR, SayimUyeUnvan1 TEXT COLLATE TR,"
    " SayimUye2 TEXT COLLATE TR, SayimUyeUnvan2 TEXT COLLATE TR)",
    "CREATE TABLE IF NOT EXISTS HESAP_K ("
    " HesapKod TEXT COLLATE TR, HesapAd TEXT COLLATE TR, HesapNo TEXT COLLATE TR,"
    " AnaHesapNo INTEGER, AnaBolum INTEGER)",
    "CREATE INDEX IF NOT EXISTS HESAP_K_HesapKod ON HESAP_K (HesapKod)",
    "CREATE TABLE IF NOT EXISTS URUN_K ("
    " HesapKod TEXT COLLATE TR, MalzAdi TEXT COLLATE TR, Birimi TEXT COLLATE TR,"
    " KDV1 TEXT COLLATE TR, Barkod TEXT COLLATE TR, Stok NUMERIC,"
    " EskiKod TEXT COLLATE TR, AnaHesapNo INTEGER)",
    "CREATE UNIQUE INDEX IF NOT EXISTS URUN_K_HesapKod ON URUN_K (HesapKod)",
    "CREATE INDEX IF NOT EXISTS URUN_K_MalzAdi ON URUN_K (MalzAdi)",
    "CREATE TABLE IF NOT EXISTS Unite_K (UniteKod TEXT COLLATE TR, UniteAd TEXT COLLATE TR)",
    "CREATE INDEX IF NOT EXISTS Unite_K_UniteKod ON Unite_K (UniteKod)",
    "CREATE TABLE IF NOT EXISTS Firma_K ("
    " FirmaKod TEXT COLLATE TR, FirmaAd TEXT COLLATE TR, VergiNo TEXT COLLATE TR,"
    " VergiDaire TEXT COLLATE TR, Telefon TEXT COLLATE TR, Adres TEXT COLLATE TR)",
    "CREATE TABLE IF NOT EXISTS ODENEK_K ("
    " Yil TEXT COLLATE TR, HesapNo TEXT COLLATE TR, OdenekTutar TEXT COLLATE TR)",
    "CREATE TABLE IF NOT EXISTS Kul (ad TEXT COLLATE TR, parola TEXT)",
    "CREATE TABLE IF NOT EXISTS yetki (ad TEXT COLLATE TR, yetki TEXT COLLATE TR)",
    "CREATE TABLE IF NOT EXISTS GOREV (GorevKod TEXT COLLATE TR, Ad TEXT COLLATE TR)",
};

const char* const ayniyatTablolar[] = {
    "CREATE TABLE IF NOT EXISTS FIS ("
    " Tarih TEXT COLLATE TR, FisNo INTEGER, FCins TEXT COLLATE TR, FCinss TEXT COLLATE TR,"
    " Satir INTEGER, HesapKod TEXT COLLATE TR, Ozellik TEXT COLLATE TR, SicilNo,"
    " Miktar TEXT COLLATE TR, Cikan TEXT COLLATE TR, Birimi TEXT COLLATE TR,"
    " BirimFiyat TEXT COLLATE TR, KDV NUMERIC, Unite TEXT COLLATE TR, IslemTur INTEGER,"
    " KimeVerildigi TEXT COLLATE TR, AmbarNo INTEGER, OzelKod TEXT COLLATE TR,"
    " BelgeTarih TEXT COLLATE TR, BelgeSayi TEXT COLLATE TR,"
    " KabulSayi TEXT COLLATE TR, KabulTarih TEXT COLLATE TR,"
    // Filled only by the transfer of earlier versions' files.
    " HesapNo TEXT COLLATE TR, HesapAd TEXT COLLATE TR, FToplam TEXT COLLATE TR,"
    " Nakden TEXT COLLATE TR, Mahsub TEXT COLLATE TR, EsasDefNo TEXT COLLATE TR,"
    " EsasDefAd TEXT COLLATE TR, TeslimatNo TEXT COLLATE TR, ParaAlan TEXT COLLATE TR,"
    " BankaKod TEXT COLLATE TR, KarsiNo TEXT COLLATE TR, Tur TEXT COLLATE TR,"
    " Aciklama TEXT COLLATE TR, AnaHesapNo INTEGER)",
    "CREATE INDEX IF NOT EXISTS FIS_Fis ON FIS (FisNo, FCins)",
    "CREATE INDEX IF NOT EXISTS FIS_HesapKod ON FIS (HesapKod)",
    "CREATE INDEX IF NOT EXISTS FIS_Ozellik ON FIS (Ozellik)",
    "CREATE TABLE IF NOT EXISTS FIS_B ("
    " FisNo INTEGER, Tarih TEXT COLLATE TR, FCins TEXT COLLATE TR,"
    " KabulSayi TEXT COLLATE TR, KabulTarih TEXT COLLATE TR, TeslimAlan TEXT COLLATE TR,"
    " NeredenGeldigi TEXT COLLATE TR, Ozellik TEXT COLLATE TR,"
    " BelgeTarih TEXT COLLATE TR, BelgeSayi TEXT COLLATE TR, BelgeTur TEXT COLLATE TR,"
    " Ad TEXT COLLATE TR, Stad TEXT COLLATE TR, YevmiyeNo TEXT COLLATE TR,"
    " Sonuc2 TEXT COLLATE TR, MacPrim TEXT COLLATE TR)",
    "CREATE INDEX IF NOT EXISTS FIS_B_Fis ON FIS_B (FisNo, FCins)",
    "CREATE TABLE IF NOT EXISTS DUSUM_B ("
    " FisNo INTEGER, Tarih TEXT COLLATE TR, FCins TEXT COLLATE TR,"
    " KomisyonBaskaniAdi TEXT COLLATE TR, KomisyonBaskaniUnvani TEXT COLLATE TR,"
    " UyeAdi TEXT COLLATE TR, UyeUnvani TEXT COLLATE TR,"
    " HarcamaYetkilisiAdi TEXT COLLATE TR, HarcamaYetkilisiUnvani TEXT COLLATE TR,"
    " MalzAdi TEXT COLLATE TR, Ozellik TEXT COLLATE TR, BirimFiyat TEXT COLLATE TR,"
    " Unite TEXT COLLATE TR, ACIKLAMA_B TEXT COLLATE TR, YevmiyeNo TEXT COLLATE TR,"
    " UniteAd TEXT COLLATE TR, UniteKod TEXT COLLATE TR, Ge TEXT COLLATE TR,"
    " FisTutar NUMERIC, FKarsiNo INTEGER,"
    " Ad TEXT COLLATE TR, Stad TEXT COLLATE TR, Sonuc2 TEXT COLLATE TR, MacPrim TEXT COLLATE TR)",
    "CREATE INDEX IF NOT EXISTS DUSUM_B_Fis ON DUSUM_B (FisNo, FCins)",
    "CREATE TABLE IF NOT EXISTS ISTATIS (FisNo TEXT COLLATE TR, HesapNo TEXT COLLATE TR, Oran TEXT COLLATE TR)",
};

const char* const hesapKodTablolar[] = {
    "CREATE TABLE IF NOT EXISTS HesapKod1 ("
    " Alan1 TEXT COLLATE TR, Alan2 TEXT COLLATE TR, Alan3 TEXT COLLATE TR,"
    " Alan4 TEXT COLLATE TR, Alan5 TEXT COLLATE TR, Alan6 TEXT COLLATE TR,"
    " Alan7 TEXT COLLATE TR)",
    // The name is read as HesapAd by the plan screen and as MalzAdi by the
    // class screen; both columns hold it.
    "CREATE TABLE IF NOT EXISTS HesapKod2 ("
    " HesapKod TEXT COLLATE TR, HesapAd TEXT COLLATE TR, MalzAdi TEXT COLLATE TR)",
};

const char* const okulTablolar[] = {
    "CREATE TABLE IF NOT EXISTS CariHesap_Kart ("
    " CariHesapKod TEXT COLLATE TR, CariHesapAd TEXT COLLATE TR,"
    " VergiKimlikNo TEXT COLLATE TR, VergiDaire TEXT COLLATE TR, TCNo TEXT COLLATE TR,"
    " Telefon TEXT COLLATE TR, Adres TEXT COLLATE TR, Adres2 TEXT COLLATE TR,"
    " Aciklama TEXT COLLATE TR)",
    "CREATE TABLE IF NOT EXISTS CariHesap_Hareket ("
    " CariHesapKod TEXT COLLATE TR, Tarih TEXT COLLATE TR, CariTur TEXT COLLATE TR,"
    " Aciklama TEXT COLLATE TR, BORC NUMERIC, ALACAK NUMERIC)",
    "CREATE INDEX IF NOT EXISTS CariHesap_Hareket_Kod ON CariHesap_Hareket (CariHesapKod)",
};

const char* const sirketTablolar[] = {
    "CREATE TABLE IF NOT EXISTS Sezon ("
    " CalisSezon TEXT COLLATE TR, sirad TEXT COLLATE TR, def TEXT COLLATE TR)",
    "CREATE TABLE IF NOT EXISTS Cari_T (CariTur TEXT COLLATE TR, CariTurAdi TEXT COLLATE TR)",
};

template <std::size_t N>
QList<const char*> liste(const char* const (&dizi)[N])
{
    return QList<const char*>(std::begin(dizi), std::end(dizi));
}

QList<const char*> tablolar(Dosya dosya)
{
    switch (dosya) {
    case Dosya::Genel: return liste(genelTablolar);
    case Dosya::Ayniyat: return liste(ayniyatTablolar);
    case Dosya::HesapKod: return liste(hesapKodTablolar);
    case Dosya::Okul: return liste(okulTablolar);
    case Dosya::Sirket: return liste(sirketTablolar);
    }
    return {};
}

// Movement types of current accounts that an institution's accounts use.
const char* const cariTurler[][2] = {
    {"01", "Devir"},
    {"02", "Tahsilat"},
    {"03", "Ödeme"},
    {"04", "Fatura"},
    {"05", "Avans"},
    {"06", "Avans Kapama"},
    {"07", "Mahsup"},
    {"08", "İade"},
    {"09", "Teminat"},
    {"10", "Diğer"},
};

void planiYaz(Veritabani& vt)
{
    for (const auto& [kod, ad] : Sema::KodListesi()) {
        const bool ana = kod.size() == 3;
        vt.Calistir(QStringLiteral("insert into HESAP_K (HesapKod, HesapAd, HesapNo, AnaHesapNo, AnaBolum)"
                                   " values (?, ?, '', ?, ?)"),
                    {kod, ad, kod.left(3).toInt(), ana ? 0 : 1});
    }
}

void referansPlaniYaz(Veritabani& vt)
{
    for (const auto& [kod, ad] : Sema::KodListesi()) {
        QStringList gruplar = kod.split(u' ');
        while (gruplar.size() < 6)
            gruplar.append(QStringLiteral(""));  // empty, not NULL
        QVariantList degerler;
        for (int i = 0; i < 6; ++i)
            degerler.append(gruplar.at(i));
        degerler.append(ad);
        vt.Calistir(QStringLiteral("insert into HesapKod1 (Alan1, Alan2, Alan3, Alan4, Alan5, Alan6, Alan7)"
                                   " values (?, ?, ?, ?, ?, ?, ?)"),
                    degerler);
        vt.Calistir(QStringLiteral("insert into HesapKod2 (HesapKod, HesapAd, MalzAdi) values (?, ?, ?)"),
                    {kod, ad, ad});
    }
}

}

QList<QPair<QString, QString>> Sema::KodListesi()
{
    QFile dosya(QStringLiteral(":/kod_listesi.tsv"));
    if (!dosya.open(QIODevice::ReadOnly | QIODevice::Text))
        throw VeriHatasi(QStringLiteral("Hesap planı listesi okunamadı."));
    QList<QPair<QString, QString>> liste;
    QTextStream akis(&dosya);
    while (!akis.atEnd()) {
        const QString satir = akis.readLine();
        const qsizetype sekme = satir.indexOf(u'\t');
        if (sekme > 0)
            liste.append({satir.left(sekme).trimmed(), satir.mid(sekme + 1).trimmed()});
    }
    return liste;
}

void Sema::Tamamla(Veritabani& vt, Dosya dosya)
{
    for (const char* komut : tablolar(dosya))
        vt.Calistir(QString::fromUtf8(komut));
}

void Sema::TeslimSatirlari(Veritabani& vt, Dosya dosya)
{
    switch (dosya) {
    case Dosya::Genel: {
        const QDate bugun = Saat::Bugun();
        vt.Calistir(QStringLiteral("insert into Sabit (Anahtar, CalisYil, CalisAy, KDV1) values (1, ?, ?, '20')"),
                    {bugun.year(), bugun.month()});
        planiYaz(vt);
        break;
    }
    case Dosya::HesapKod:
        referansPlaniYaz(vt);
        break;
    case Dosya::Sirket:
        for (const auto& tur : cariTurler)
            vt.Calistir(QStringLiteral("insert into Cari_T (CariTur, CariTurAdi) values (?, ?)"),
                        {QString::fromUtf8(tur[0]), QString::fromUtf8(tur[1])});
        break;
    case Dosya::Ayniyat:
    case Dosya::Okul:
        break;
    }
}
