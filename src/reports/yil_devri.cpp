#include "yil_devri.h"

#include "fis_degeri.h"
#include "kayit.h"
#include "rapor_belgesi.h"
#include "veritabani.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

namespace YilDevri {

namespace {

enum Sutun : int { sHesapKod, sTarih, sFisNo, sSatir, sBirimi, sMiktar, sBirimFiyat, sCikan, sFCinss };

// The first n characters of a UTF-8 text, as Mid(HesapKod, 1, n) gives them.
std::string_view basi(std::string_view metin, int n)
{
    std::size_t i = 0;
    for (int k = 0; i < metin.size(); ++i) {
        if ((static_cast<unsigned char>(metin[i]) & 0xC0) != 0x80 && k++ == n)
            break;
    }
    return metin.substr(0, i);
}

// A value where "order by" places it: NULL, then numbers, then texts by
// their bytes.
struct SiraDegeri
{
    int sinif = 0;
    double sayi = 0;
    std::string metin;

    static int sinifi(sqlite3_value* v)
    {
        const int tur = sqlite3_value_type(v);
        return tur == SQLITE_NULL ? 0 : tur == SQLITE_INTEGER || tur == SQLITE_FLOAT ? 1 : 2;
    }
    void Al(sqlite3_value* v)
    {
        sinif = sinifi(v);
        if (sinif == 1)
            sayi = sqlite3_value_double(v);
        else if (sinif == 2)
            metin.assign(DegerBaytlari(v));
    }
    // The engine's value against this one, without copying it.
    int Karsilastir(sqlite3_value* v) const
    {
        const int s = sinifi(v);
        if (s != sinif)
            return s < sinif ? -1 : 1;
        if (s == 1) {
            const double x = sqlite3_value_double(v);
            return x < sayi ? -1 : x > sayi ? 1 : 0;
        }
        return s == 2 ? DegerBaytlari(v).compare(metin) : 0;
    }
};

// The place of a class's last line in "order by FisNo, Tarih, Satir".
struct SonSatir
{
    SiraDegeri fisNo, tarih, satir;

    // The line after this one in that order: ties keep the table's order.
    bool Sonra(sqlite3_value* f, sqlite3_value* t, sqlite3_value* s) const
    {
        int k = fisNo.Karsilastir(f);
        if (k == 0)
            k = tarih.Karsilastir(t);
        if (k == 0)
            k = satir.Karsilastir(s);
        return k >= 0;
    }
};

struct Grup
{
    std::vector<Satir> satirlar;
    SonSatir son;
    std::uint32_t sonBirimi = 0;
};

// The statements keep the form's own test of the code's length.
QList<Sinif> sinifListesi(Veritabani& genel, Duzey duzey, const QString& anaHesap)
{
    QString sql = duzey == Duzey::Iki
                      ? QStringLiteral("Select HesapKod, HesapAd From HESAP_K where mid(HesapKod,11,1) = '' and "
                                       "mid(HesapKod,8,1) <> ''   ")
                      : QStringLiteral("Select HesapKod, HesapAd From HESAP_K where mid(HesapKod, 8, 1) = '' and "
                                       "mid(HesapKod, 5, 1) <> '' ");
    QVariantList degerler;
    if (!anaHesap.isEmpty()) {
        sql += QStringLiteral("and  MID(HesapKod,1,3) = ? ");
        degerler << anaHesap;
    }
    QList<Sinif> siniflar;
    for (const QStringList& r : genel.Satirlar(sql, degerler))
        siniflar.append({r.at(0), r.at(1)});
    return siniflar;
}

}

Okunan Oku(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, Duzey duzey, const QString& anaHesap,
           const QString& yil)
{
    Okunan o;
    o.siniflar = sinifListesi(genel, duzey, anaHesap);
    const int uzunluk = duzey == Duzey::Iki ? 9 : 6;

    // A code twice in the plan gets the same lines twice.
    std::unordered_map<std::string, std::uint32_t> gruplar;
    std::vector<std::uint32_t> grubu;
    for (const Sinif& sinif : o.siniflar)
        grubu.push_back(gruplar.try_emplace(sinif.HesapKod.toStdString(), std::uint32_t(gruplar.size())).first->second);
    std::vector<Grup> g(gruplar.size());

    // Dates and units repeat from line to line: each is worked out once.
    std::unordered_map<std::string, Yil> yillar;
    std::unordered_map<std::string, std::uint32_t> birimNo;
    o.birimler.emplace_back();  // NULL
    std::vector<std::string> birimBaytlari(1);

    const SqlParcasi k = RaporSuzgecleri::SatirKosulu(s);
    {
        // One pass over the table in its own order: a query per class cannot
        // use the index through Mid and would read the table once a class.
        SatirOkuyucu q(ayniyat,
                       QStringLiteral("Select HesapKod, Tarih, FisNo, Satir, birimi, Miktar, BirimFiyat, Cikan, FCinss "
                                      "from FIS not indexed Where ")
                           + k.sql,
                       k.degerler);
        std::string sonKod;
        Grup* sonGrup = nullptr;
        bool ilk = true;
        // Lines of one voucher follow each other: date and unit mostly
        // repeat the last.
        std::string sonTarih, sonBirim;
        Yil sonYil = Yil::Sonraki;
        std::uint32_t sonBirimNo = 0;
        bool tarihVar = false, birimVar = false;
        while (q.Sonraki()) {
            sqlite3_stmt* c = q.Komut();
            sqlite3_value* hesapKod = sqlite3_column_value(c, sHesapKod);
            if (sqlite3_value_type(hesapKod) == SQLITE_NULL)
                continue;
            const std::string_view kod = basi(DegerBaytlari(hesapKod), uzunluk);
            if (ilk || kod != sonKod) {
                ilk = false;
                sonKod.assign(kod);
                const auto bulunan = gruplar.find(sonKod);
                sonGrup = bulunan == gruplar.end() ? nullptr : &g[bulunan->second];
            }
            if (!sonGrup)
                continue;

            Satir satir{};
            satir.miktar = DegerSayisi(sqlite3_column_value(c, sMiktar));
            satir.cikan = DegerSayisi(sqlite3_column_value(c, sCikan));
            satir.fiyat = DegerSayisi(sqlite3_column_value(c, sBirimFiyat));
            satir.dusum = DusumSatiri(sqlite3_column_value(c, sFCinss));

            sqlite3_value* tarih = sqlite3_column_value(c, sTarih);
            if (sqlite3_value_type(tarih) == SQLITE_NULL)
                satir.yil = Yil::Sonraki;
            else {
                const std::string_view t = DegerBaytlari(tarih);
                if (!tarihVar || t != sonTarih) {
                    tarihVar = true;
                    sonTarih.assign(t);
                    auto y = yillar.find(sonTarih);
                    if (y == yillar.end()) {
                        // Mid(Tarih, 7, 4) against the year, as texts.
                        const QString l = QString::fromUtf8(t.data(), qsizetype(t.size())).mid(6, 4);
                        const int fark = l.compare(yil);
                        y = yillar.emplace(sonTarih, fark < 0    ? Yil::Onceki
                                                     : fark == 0 ? Yil::Ayni
                                                                 : Yil::Sonraki)
                                .first;
                    }
                    sonYil = y->second;
                }
                satir.yil = sonYil;
            }

            sqlite3_value* birimi = sqlite3_column_value(c, sBirimi);
            if (sqlite3_value_type(birimi) != SQLITE_NULL) {
                const std::string_view b = DegerBaytlari(birimi);
                if (!birimVar || b != sonBirim) {
                    birimVar = true;
                    sonBirim.assign(b);
                    auto bulunan = birimNo.find(sonBirim);
                    if (bulunan == birimNo.end()) {
                        bulunan = birimNo.emplace(sonBirim, std::uint32_t(o.birimler.size())).first;
                        o.birimler.push_back(QString::fromUtf8(b.data(), qsizetype(b.size())));
                        birimBaytlari.emplace_back(b);
                    }
                    sonBirimNo = bulunan->second;
                }
                satir.birimi = sonBirimNo;
            }

            sqlite3_value* fisNo = sqlite3_column_value(c, sFisNo);
            sqlite3_value* satirNo = sqlite3_column_value(c, sSatir);
            if (sonGrup->satirlar.empty() || sonGrup->son.Sonra(fisNo, tarih, satirNo)) {
                sonGrup->son.fisNo.Al(fisNo);
                sonGrup->son.tarih.Al(tarih);
                sonGrup->son.satir.Al(satirNo);
                sonGrup->sonBirimi = satir.birimi;
            }
            sonGrup->satirlar.push_back(satir);
        }
    }

    // order by Birimi: NULL first, then the texts' bytes.
    std::vector<std::uint32_t> dizi(o.birimler.size());
    for (std::uint32_t i = 0; i < dizi.size(); ++i)
        dizi[i] = i;
    std::sort(dizi.begin() + 1, dizi.end(),
              [&](std::uint32_t a, std::uint32_t b) { return birimBaytlari[a] < birimBaytlari[b]; });
    o.birimSirasi.resize(dizi.size());
    for (std::uint32_t i = 0; i < dizi.size(); ++i)
        o.birimSirasi[dizi[i]] = i;

    o.bas.push_back(0);
    for (qsizetype i = 0; i < o.siniflar.size(); ++i) {
        const Grup& gr = g[grubu[i]];
        o.satirlar.insert(o.satirlar.end(), gr.satirlar.begin(), gr.satirlar.end());
        o.bas.push_back(o.satirlar.size());
        o.sonBirimi << (gr.satirlar.empty() ? QString() : o.birimler[gr.sonBirimi]);
    }
    return o;
}

const QList<RaporSutunu>& Sutunlar()
{
    const auto sag = Qt::AlignRight;
    static const QList<RaporSutunu> sutunlar = {
        {QStringLiteral("Sıra"), 500, sag, true},
        {QStringLiteral("Kod"), 1000},
        {QStringLiteral("Taşınır Adı"), 2600},
        {QStringLiteral("Ölçü Birimi"), 900},
        {QStringLiteral("Devreden Miktar"), 1200, sag, true},
        {QStringLiteral("Devreden Tutar"), 1400, sag, true},
        {QStringLiteral("Giren Miktar"), 1200, sag, true},
        {QStringLiteral("Giren Tutar"), 1400, sag, true},
        {QStringLiteral("Toplam Miktar"), 1200, sag, true},
        {QStringLiteral("Toplam Tutar"), 1400, sag, true},
        {QStringLiteral("Çıkan Miktar"), 1200, sag, true},
        {QStringLiteral("Çıkan Tutar"), 1400, sag, true},
        {QStringLiteral("Devir Miktar"), 1200, sag, true},
        {QStringLiteral("Devir Tutar"), 1400, sag, true}};
    return sutunlar;
}

KagitSatiri Basilan(const RaporSatiri& satir)
{
    const QStringList& h = satir.hucreler;
    const auto sagda = [&](int hucre, int genislik) { return RaporBelgeleri::Sagda(h.value(hucre), genislik); };
    return {{0, h.value(Sira)},
            {5, h.value(Kod)},
            {16, h.value(Ad).left(32)},
            {50, h.value(Birimi).left(6)},
            {61, sagda(DevredenMiktar, 7)},
            {69, sagda(DevredenTutar, 10)},
            {82, sagda(GirenMiktar, 11)},
            {94, sagda(GirenTutar, 7)},
            {106, sagda(ToplamMiktar, 7)},
            {114, sagda(ToplamTutar, 11)},
            {126, sagda(CikanMiktar, 7)},
            {134, sagda(CikanTutar, 11)},
            {147, sagda(DevirMiktar, 7)},
            {155, sagda(DevirTutar, 11)}};
}

QList<BasSatiri> GenisBasliklar(const QString& duzey, const QString& sonBaslik)
{
    return {{{{0, QStringLiteral("Sıra")},
              {5, duzey},
              {16, QStringLiteral(" Taşınır ") + duzey},
              {50, QStringLiteral("Ölçü")},
              {62, QStringLiteral("GeçenYılDevreden")},
              {84, QStringLiteral(" Yıl İçinde Giren   ")},
              {106, QStringLiteral("       TOPLAM     ")},
              {127, QStringLiteral(" Yıl İçinde Çıkan ")},
              {149, sonBaslik}},
             true},
            {{{0, QStringLiteral("No ")},
              {5, QStringLiteral("Detay Kod ")},
              {16, QStringLiteral(" Detay Adı        ")},
              {50, QStringLiteral("Birimi ")},
              {61, QStringLiteral("   Miktar         Tutar  ")},
              {84, QStringLiteral(" Miktar         Tutar  ")},
              {106, QStringLiteral("Miktar       Tutar")},
              {127, QStringLiteral(" Miktar       Tutar  ")},
              {149, QStringLiteral(" Miktar       Tutar  ")}},
             true}};
}

QList<BasSatiri> DarBasliklar(const QString& duzey)
{
    return {{{{0, QStringLiteral("Sıra")},
              {5, duzey},
              {16, QStringLiteral(" Taşınır ") + duzey},
              {37, QStringLiteral("Ölçü")},
              {45, QStringLiteral("GeçenYıldan Devreden    ")},
              {66, QStringLiteral("Yıl İçinde Giren   ")},
              {86, QStringLiteral("       TOPLAM     ")},
              {107, QStringLiteral("Yıl İçinde Çıkan ")},
              {128, QStringLiteral("Gelecek Yıla Devir")}},
             true},
            {{{0, QStringLiteral("No ")},
              {5, QStringLiteral("Detay Kod ")},
              {16, QStringLiteral(" Detay Adı        ")},
              {37, QStringLiteral("Birimi ")},
              {45, QStringLiteral("     Miktar         Tutar  ")},
              {66, QStringLiteral(" Miktar      Tutar  ")},
              {86, QStringLiteral("Miktar       Tutar")},
              {107, QStringLiteral(" Miktar       Tutar  ")},
              {128, QStringLiteral(" Miktar      Tutar  ")}},
             true}};
}

}
