#include "sema.h"

#include "saat.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QTextStream>

namespace {

// Built-in collations only, so that any SQLite tool opens the files: the
// codes, names and kinds the program compares or looks up are blind to case
// (NOCASE), the rest compare as stored. A statement that sorts or matches
// names for the user asks for the Turkish order itself (COLLATE TR). Codes
// (digits and single blanks) and dd.mm.yyyy dates need not: TR weighs an
// ASCII character that is no letter by its code, so they sort as stored.
// Quantities, prices and dates are text.
const char* const genelTablolar[] = {
    "CREATE TABLE IF NOT EXISTS Sabit ("
    " Anahtar INTEGER,"
    " Muhasebeci1 TEXT, Muhasebeci2 TEXT,"
    " AyniyatMemuru1 TEXT, AyniyatMemuru2 TEXT,"
    " itaAmiri TEXT, itaAmiriAd TEXT,"
    " AmbarMemur TEXT, AmbarMemurAd TEXT,"
    " SubeMudur1 TEXT, SubeMudur2 TEXT,"
    " HarcamaYetkilisi1 TEXT, HarcamaYetkilisi2 TEXT,"
    " UstYonetici1 TEXT, UstYonetici2 TEXT,"
    " MuhasebeBirimiAdi TEXT, MuhasebeBirimiKod TEXT,"
    " KurumAdi TEXT, KurumKod TEXT,"
    " ilAdi TEXT, ilKod TEXT,"
    " BirimAd TEXT, BirimKod TEXT,"
    " KDV1 TEXT, FutFedOran TEXT, FedOran TEXT,"
    " DamgaOran1 TEXT, DamgaOran2 TEXT, DamgaOran3 TEXT,"
    " DamSinir1 TEXT, DamSinir2 TEXT, DamSinir3 TEXT,"
    " LigSponsoru TEXT, Sezon TEXT, Sezon1 TEXT,"
    " CalisYil NUMERIC, CalisAy NUMERIC,"
    " SayimBaskan TEXT, SayimBaskanUnvan TEXT,"
    " SayimUye1 TEXT, SayimUyeUnvan1 TEXT,"
    " SayimUye2 TEXT, SayimUyeUnvan2 TEXT)",
    "CREATE TABLE IF NOT EXISTS HESAP_K ("
    " HesapKod TEXT COLLATE NOCASE, HesapAd TEXT COLLATE NOCASE, HesapNo TEXT COLLATE NOCASE,"
    " AnaHesapNo INTEGER, AnaBolum INTEGER)",
    "CREATE INDEX IF NOT EXISTS HESAP_K_HesapKod ON HESAP_K (HesapKod)",
    "CREATE TABLE IF NOT EXISTS URUN_K ("
    " HesapKod TEXT COLLATE NOCASE, MalzAdi TEXT COLLATE NOCASE, Birimi TEXT,"
    " KDV1 TEXT, Barkod TEXT COLLATE NOCASE, Stok NUMERIC,"
    " EskiKod TEXT COLLATE NOCASE, AnaHesapNo INTEGER)",
    "CREATE UNIQUE INDEX IF NOT EXISTS URUN_K_HesapKod ON URUN_K (HesapKod)",
    "CREATE INDEX IF NOT EXISTS URUN_K_MalzAdi ON URUN_K (MalzAdi)",
    "CREATE TABLE IF NOT EXISTS Unite_K (UniteKod TEXT COLLATE NOCASE, UniteAd TEXT COLLATE NOCASE)",
    "CREATE INDEX IF NOT EXISTS Unite_K_UniteKod ON Unite_K (UniteKod)",
    "CREATE TABLE IF NOT EXISTS Firma_K ("
    " FirmaKod TEXT COLLATE NOCASE, FirmaAd TEXT COLLATE NOCASE, VergiNo TEXT,"
    " VergiDaire TEXT, Telefon TEXT, Adres TEXT)",
    "CREATE TABLE IF NOT EXISTS ODENEK_K ("
    " Yil TEXT, HesapNo TEXT COLLATE NOCASE, OdenekTutar TEXT)",
    "CREATE TABLE IF NOT EXISTS Kul (ad TEXT COLLATE NOCASE, parola TEXT)",
    "CREATE TABLE IF NOT EXISTS yetki (ad TEXT COLLATE NOCASE, yetki TEXT COLLATE NOCASE)",
    "CREATE TABLE IF NOT EXISTS GOREV (GorevKod TEXT COLLATE NOCASE, Ad TEXT COLLATE NOCASE)",
    // Writes across files that an interrupted run left for the next opening
    // to undo (see DosyalarArasi).
    "CREATE TABLE IF NOT EXISTS BEKLEYEN (No INTEGER PRIMARY KEY, Aciklama TEXT, Komutlar BLOB)",
};

const char* const ayniyatTablolar[] = {
    "CREATE TABLE IF NOT EXISTS FIS ("
    " Tarih TEXT, FisNo INTEGER, FCins TEXT COLLATE NOCASE, FCinss TEXT COLLATE NOCASE,"
    " Satir INTEGER, HesapKod TEXT COLLATE NOCASE, Ozellik TEXT COLLATE NOCASE, SicilNo,"
    " Miktar TEXT, Cikan TEXT, Birimi TEXT,"
    " BirimFiyat TEXT, KDV NUMERIC, Unite TEXT COLLATE NOCASE, IslemTur INTEGER,"
    " KimeVerildigi TEXT COLLATE NOCASE, AmbarNo INTEGER, OzelKod TEXT COLLATE NOCASE,"
    " BelgeTarih TEXT, BelgeSayi TEXT COLLATE NOCASE,"
    " KabulSayi TEXT COLLATE NOCASE, KabulTarih TEXT,"
    // Filled only by the transfer of earlier versions' files.
    " HesapNo TEXT, HesapAd TEXT, FToplam TEXT,"
    " Nakden TEXT, Mahsub TEXT, EsasDefNo TEXT,"
    " EsasDefAd TEXT, TeslimatNo TEXT, ParaAlan TEXT,"
    " BankaKod TEXT, KarsiNo TEXT, Tur TEXT,"
    " Aciklama TEXT, AnaHesapNo INTEGER)",
    "CREATE INDEX IF NOT EXISTS FIS_Fis ON FIS (FisNo, FCins)",
    "CREATE INDEX IF NOT EXISTS FIS_HesapKod ON FIS (HesapKod)",
    "CREATE INDEX IF NOT EXISTS FIS_Ozellik ON FIS (Ozellik)",
    "CREATE TABLE IF NOT EXISTS FIS_B ("
    " FisNo INTEGER, Tarih TEXT, FCins TEXT COLLATE NOCASE,"
    " KabulSayi TEXT COLLATE NOCASE, KabulTarih TEXT, TeslimAlan TEXT COLLATE NOCASE,"
    " NeredenGeldigi TEXT COLLATE NOCASE, Ozellik TEXT COLLATE NOCASE,"
    " BelgeTarih TEXT, BelgeSayi TEXT COLLATE NOCASE, BelgeTur TEXT COLLATE NOCASE,"
    " Ad TEXT, Stad TEXT, YevmiyeNo TEXT,"
    " Sonuc2 TEXT, MacPrim TEXT)",
    "CREATE INDEX IF NOT EXISTS FIS_B_Fis ON FIS_B (FisNo, FCins)",
    "CREATE TABLE IF NOT EXISTS DUSUM_B ("
    " FisNo INTEGER, Tarih TEXT, FCins TEXT COLLATE NOCASE,"
    " KomisyonBaskaniAdi TEXT, KomisyonBaskaniUnvani TEXT,"
    " UyeAdi TEXT, UyeUnvani TEXT,"
    " HarcamaYetkilisiAdi TEXT, HarcamaYetkilisiUnvani TEXT,"
    " MalzAdi TEXT COLLATE NOCASE, Ozellik TEXT COLLATE NOCASE, BirimFiyat TEXT,"
    " Unite TEXT COLLATE NOCASE, ACIKLAMA_B TEXT, YevmiyeNo TEXT,"
    " UniteAd TEXT COLLATE NOCASE, UniteKod TEXT COLLATE NOCASE, Ge TEXT,"
    " FisTutar NUMERIC, FKarsiNo INTEGER,"
    " Ad TEXT, Stad TEXT, Sonuc2 TEXT, MacPrim TEXT)",
    "CREATE INDEX IF NOT EXISTS DUSUM_B_Fis ON DUSUM_B (FisNo, FCins)",
    "CREATE TABLE IF NOT EXISTS ISTATIS (FisNo TEXT, HesapNo TEXT COLLATE NOCASE, Oran TEXT)",
};

const char* const hesapKodTablolar[] = {
    "CREATE TABLE IF NOT EXISTS HesapKod1 ("
    " Alan1 TEXT COLLATE NOCASE, Alan2 TEXT COLLATE NOCASE, Alan3 TEXT COLLATE NOCASE,"
    " Alan4 TEXT COLLATE NOCASE, Alan5 TEXT COLLATE NOCASE, Alan6 TEXT COLLATE NOCASE,"
    " Alan7 TEXT COLLATE NOCASE)",
    // The name is read as HesapAd by the plan screen and as MalzAdi by the
    // class screen; both columns hold it.
    "CREATE TABLE IF NOT EXISTS HesapKod2 ("
    " HesapKod TEXT COLLATE NOCASE, HesapAd TEXT COLLATE NOCASE, MalzAdi TEXT COLLATE NOCASE)",
    // A loaded code list finds its rows by code, not by a scan per line.
    "CREATE INDEX IF NOT EXISTS HesapKod1_Alanlar ON HesapKod1 (Alan1, Alan2, Alan3, Alan4, Alan5, Alan6)",
    "CREATE INDEX IF NOT EXISTS HesapKod2_HesapKod ON HesapKod2 (HesapKod)",
};

const char* const okulTablolar[] = {
    "CREATE TABLE IF NOT EXISTS CariHesap_Kart ("
    " CariHesapKod TEXT COLLATE NOCASE, CariHesapAd TEXT COLLATE NOCASE,"
    " VergiKimlikNo TEXT, VergiDaire TEXT, TCNo TEXT,"
    " Telefon TEXT, Adres TEXT, Adres2 TEXT,"
    " Aciklama TEXT)",
    "CREATE TABLE IF NOT EXISTS CariHesap_Hareket ("
    " CariHesapKod TEXT COLLATE NOCASE, Tarih TEXT, CariTur TEXT COLLATE NOCASE,"
    " Aciklama TEXT, BORC NUMERIC, ALACAK NUMERIC)",
    "CREATE INDEX IF NOT EXISTS CariHesap_Hareket_Kod ON CariHesap_Hareket (CariHesapKod)",
};

const char* const sirketTablolar[] = {
    "CREATE TABLE IF NOT EXISTS Sezon ("
    " CalisSezon TEXT COLLATE NOCASE, sirad TEXT, def TEXT)",
    "CREATE TABLE IF NOT EXISTS Cari_T (CariTur TEXT COLLATE NOCASE, CariTurAdi TEXT COLLATE NOCASE)",
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

// A copy opened by path does not say which file it is: an older file is
// rebuilt from the statements of every file.
QList<const char*> butunKomutlar()
{
    QList<const char*> komutlar;
    for (Dosya dosya : {Dosya::Genel, Dosya::Ayniyat, Dosya::HesapKod, Dosya::Okul, Dosya::Sirket})
        komutlar += tablolar(dosya);
    return komutlar;
}

// The table one of our CREATE statements makes or indexes.
QString tablosu(const char* komut)
{
    static const QRegularExpression ad(QStringLiteral(R"((?:EXISTS|ON) (\w+) \()"));
    return ad.match(QString::fromUtf8(komut)).captured(1);
}

QString tirnakli(QString ad)
{
    return u'"' + ad.replace(u'"', QStringLiteral("\"\"")) + u'"';
}

QStringList sutunlar(Veritabani& vt, const QString& tablo)
{
    QStringList adlar;
    for (const QStringList& satir : vt.Satirlar(QStringLiteral("select name from pragma_table_info(?)"), {tablo}))
        adlar << satir.at(0);
    return adlar;
}

// Each table of ours the file holds is made anew and gets its rows back by
// column name, rowids included: lists without an order read rowid order. The
// old indexes go with the old table, before their names are made again.
void yenidenKur(Veritabani& vt)
{
    QSet<QString> varolan;
    for (const QStringList& satir :
         vt.Satirlar(QStringLiteral("select lower(name) from sqlite_schema where type = 'table'")))
        varolan << satir.at(0);
    for (const char* komut : butunKomutlar()) {
        const QString tablo = tablosu(komut);
        if (!varolan.contains(tablo.toLower()))
            continue;
        if (!QByteArrayView(komut).startsWith("CREATE TABLE")) {
            vt.Calistir(QString::fromUtf8(komut));
            continue;
        }
        const QString eski = tablo + QStringLiteral("_eski");
        vt.Calistir(QStringLiteral("ALTER TABLE %1 RENAME TO %2").arg(tirnakli(tablo), tirnakli(eski)));
        vt.Calistir(QString::fromUtf8(komut));
        const QStringList yeniler = sutunlar(vt, tablo);
        QStringList ortak{QStringLiteral("rowid")};
        for (const QString& sutun : sutunlar(vt, eski))
            if (yeniler.contains(sutun, Qt::CaseInsensitive))
                ortak << tirnakli(sutun);
        vt.Calistir(QStringLiteral("INSERT INTO %1 (%2) SELECT %2 FROM %3")
                        .arg(tirnakli(tablo), ortak.join(QStringLiteral(", ")), tirnakli(eski)));
        vt.Calistir(QStringLiteral("DROP TABLE ") + tirnakli(eski));
    }
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

void Sema::Guncelle(Veritabani& vt)
{
    const int surum = vt.Satirlar(QStringLiteral("PRAGMA user_version")).value(0).value(0).toInt();
    if (surum == Surum)
        return;
    const QString ad = QFileInfo(vt.Yol()).fileName();
    if (surum > Surum)
        throw VeriHatasi(QStringLiteral("\"%1\" programın daha yeni bir sürümüyle yazılmış; bu sürüm onu açamaz. "
                                        "Dosyaya dokunulmadı; programı güncelleyiniz.")
                             .arg(ad));
    // A copy left by an attempt that never committed is as old as the file.
    const QString kopya = vt.Yol() + QStringLiteral(".eski");
    try {
        QFile::remove(kopya);
        vt.Calistir(QStringLiteral("VACUUM INTO ?"), {kopya});
        Islem islem(vt);
        yenidenKur(vt);
        vt.Calistir(QStringLiteral("PRAGMA user_version = %1").arg(Surum));
        islem.Onayla();
    } catch (const VeriHatasi& hata) {
        QFile::remove(kopya);
        throw VeriHatasi(QStringLiteral("\"%1\" bu sürümün biçimine dönüştürülemedi; dosya olduğu gibi "
                                        "bırakıldı. %2")
                             .arg(ad, hata.Mesaj()));
    }
    QFile::remove(kopya);
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
