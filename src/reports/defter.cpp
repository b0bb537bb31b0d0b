#include "defter.h"

#include "bicim.h"
#include "fis_kayit.h"
#include "fis_toplam.h"
#include "kayit.h"
#include "veritabani.h"

#include <QHash>

namespace Defter {

namespace {

const QString miktarDeseni = QStringLiteral("#####,###.#0");
const QString toplamDeseni = QStringLiteral("##,###,###.#0");

QString miktar(double x)
{
    return Format(x, miktarDeseni);
}

double sayi(const QVariant& deger)
{
    return Val(VirgulNokta(deger.toString()));
}

// The names of Unite_K by code, read once for the class rather than once a
// line. Of two rows with one code the later wins, as AlanGetir reads it;
// codes compare without regard to case, as the column does.
QHash<QString, QString> uniteAdlari(Veritabani& genel)
{
    QHash<QString, QString> adlar;
    for (const QStringList& r : genel.Satirlar(QStringLiteral("Select UniteKod, UniteAd from Unite_K")))
        adlar.insert(r.at(0).toCaseFolded(), r.at(1).trimmed());
    return adlar;
}

// The columns of the statement on FIS.
enum Alan : int { Tarih, FisNo, HesapKod, IslemTurAlani, Unite, Miktar, FCinss, BirimFiyat, Cikan, KDV, Kime, Ozel };

}

QList<Sinif> Siniflar(Veritabani& genel, const RaporSuzgeci& s, const QString& hangi)
{
    const SqlParcasi k = RaporSuzgecleri::SinifKosulu(s, hangi);
    QList<Sinif> siniflar;
    for (const QStringList& r : genel.Satirlar(
             QStringLiteral("Select HesapKod, MalzAdi, Birimi from URUN_K where ") + k.sql + QStringLiteral(" order by HesapKod"),
             k.degerler))
        siniflar.append({r.at(0), r.at(1), r.at(2)});
    return siniflar;
}

Sonuc Hesapla(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& hangi, bool kdvEkle,
              const Sinif& sinif)
{
    const bool dayanikli = hangi == u"D";
    Sonuc sonuc;
    RaporTablosu& t = sonuc.tablo;
    t.baslik = sinif.MalzAdi + QStringLiteral("   -   ")
               + (dayanikli ? QStringLiteral(" Dayanıklı Malzemeler DEFTERİ         ")
                            : QStringLiteral(" Tüketim Malzemeleri DEFTERİ         "))
               + QStringLiteral("  ") + sinif.HesapKod;
    t.tasinirAdi = sinif.MalzAdi;
    t.tasinirKod = sinif.HesapKod;
    t.olcuBirimi = sinif.Birimi;
    t.sutunlar = Sutunlar();

    SqlParcasi k = RaporSuzgecleri::SatirKosulu(s);
    k.degerler << sinif.HesapKod;
    QSqlQuery q = ayniyat.Sorgu(QStringLiteral("Select Tarih, FisNo, HesapKod, IslemTur, Unite, Miktar, FCinss, "
                                               "BirimFiyat,Cikan, KDV,KimeVerildigi,Ozellik from FIS Where ")
                                    + k.sql + QStringLiteral(" and HesapKod = ? order by FisNo, Tarih, Satir  "),
                                k.degerler);
    const QHash<QString, QString> adlar = uniteAdlari(genel);

    // The sums take the products before rounding.
    double solMiktar = 0, solTutar = 0, sagMiktar = 0, sagTutar = 0;
    int solSira = 0, sagSira = 0;
    // The transaction's text; a code beyond the list leaves the one before.
    QString islem;
    // Where a line without quantities writes when no row stands before it.
    QStringList bosta(HucreSayisi);
    while (q.next()) {
        sonuc.kayitVar = true;
        const double m = sayi(q.value(Miktar));
        const double c = sayi(q.value(Cikan));
        const bool dusum = q.value(FCinss).toString() == u"D";
        if (m != 0 || c != 0)
            t.satirlar.append({SatirTuru::Kayit, QStringList(HucreSayisi)});
        else if (!dayanikli)
            continue;
        // A durable line without quantities writes over the row before it.
        QStringList& h = t.satirlar.isEmpty() ? bosta : t.satirlar.last().hucreler;

        const QString tarih = q.value(Tarih).toString();
        const QString fisNo = q.value(FisNo).toString();
        const QString ozellik = q.value(Ozel).toString();
        const double fiyat = sayi(q.value(BirimFiyat));
        const double p = kdvEkle ? fiyat + fiyat / 100 * sayi(q.value(KDV)) : fiyat;

        if (!dusum && (dayanikli || m != 0)) {
            const QString kod = q.value(IslemTurAlani).toString();
            bool sayiMi = false;
            const int n = kod.toInt(&sayiMi);
            if (kod.isEmpty())
                islem = QStringLiteral(" ");
            else if (sayiMi && n >= 1 && n <= 20)
                islem = FisKayit::IslemAdi(n);
            // A durable line issued without an entry shows the issue on the left.
            const double solm = dayanikli && m == 0 ? c : m;
            const double tutar = p * solm;
            h[SolSira] = QString::number(++solSira);
            h[SolTarih] = tarih;
            h[SolFisNo] = fisNo;
            h[IslemTur] = kod.isEmpty() ? QString() : islem;
            h[SolMiktar] = miktar(solm);
            h[SolFiyat] = miktar(p);
            h[SolTutar] = miktar(FisToplam::Yuvarla(tutar, 3));
            h[Ozellik] = ozellik;
            solMiktar += m;
            solTutar += tutar;
        }

        const double sagFiyat = kdvEkle ? FisToplam::Yuvarla(p, 2) : fiyat;
        const auto sagYaz = [&](const QString& tur) {
            h[SagSira] = QString::number(++sagSira);
            h[SagTarih] = tarih;
            h[SagFisNo] = fisNo;
            const QString unite = q.value(Unite).toString();
            if (!unite.isEmpty())
                h[UniteAd] = adlar.value(unite.toCaseFolded());
            h[SagMiktar] = miktar(c);
            h[SagFiyat] = miktar(sagFiyat);
            h[SagTutar] = miktar(FisToplam::Yuvarla(sagFiyat * c, 2));
            h[KimeVerildigi] = q.value(Kime).toString();
            h[Ozellik] = ozellik;
            h[Tur] = tur;
        };
        if (c != 0) {
            sagYaz(QStringLiteral("Tüketim"));
            sagMiktar += c;
            sagTutar += sagFiyat * c;
        }
        // A write-off line is written again on the same row, with a number
        // of its own and nothing added to the sums.
        if (dayanikli && dusum)
            sagYaz(QStringLiteral("Düşüm"));
    }

    if (solMiktar != 0 || sagMiktar != 0) {
        QStringList h(HucreSayisi);
        h[IslemTur] = QStringLiteral("SüreGelen");
        h[SolMiktar] = miktar(solMiktar);
        h[SolTutar] = Format(solTutar, toplamDeseni);
        h[UniteAd] = QStringLiteral("SüreGelen");
        h[SagMiktar] = miktar(sagMiktar);
        h[SagTutar] = Format(sagTutar, toplamDeseni);
        t.satirlar.append({SatirTuru::Kapanis, h});
    }
    return sonuc;
}

const QList<RaporSutunu>& Sutunlar()
{
    const auto sag = Qt::AlignRight;
    static const QList<RaporSutunu> sutunlar = {
        {QStringLiteral("Sıra"), 500, sag, true},          {QStringLiteral("Tarih"), 1000},
        {QStringLiteral("FişNo"), 600, sag, true},         {QStringLiteral("İşlem Tür"), 1300},
        {QStringLiteral("Miktar"), 1000, sag, true},       {QStringLiteral("BirimFiyat"), 1100, sag, true},
        {QStringLiteral("Tutar"), 1200, sag, true},        {QStringLiteral("Sıra"), 500, sag, true},
        {QStringLiteral("Tarih"), 1000},                   {QStringLiteral("FişNo"), 600, sag, true},
        {QStringLiteral("Ünite-Birim"), 1600},             {QStringLiteral("Miktar"), 1000, sag, true},
        {QStringLiteral("BirimFiyat"), 1100, sag, true},   {QStringLiteral("ÇıkanDeğer"), 1200, sag, true},
        {QStringLiteral("KimeVerildiği"), 2000},           {QStringLiteral("Özellik"), 2000},
        {QStringLiteral("Tür"), 800}};
    return sutunlar;
}

}
