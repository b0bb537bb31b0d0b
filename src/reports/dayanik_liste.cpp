#include "dayanik_liste.h"

#include "defter.h"
#include "kayit.h"
#include "veritabani.h"

#include <sqlite3.h>

#include <array>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace DayanikListesi {

namespace {

// The columns read from FIS, in this order, after Unite.
enum Alan : int { aTarih, aFisNo, aSicilNo, aHesapKod, aMiktar, aCikan, aKime, aOzellik, AlanSayisi };
const QString fisSutunlari =
    QStringLiteral("Unite, FCinss, Tarih, FisNo, SicilNo, HesapKod, Miktar, Cikan, KimeVerildigi, Ozellik");
constexpr int ilkAlan = 2;

// More units than this are not bound one by one: the walk sorts them out.
constexpr qsizetype enCokBagli = 500;

// The text as the NOCASE columns compare it: ASCII letters folded.
std::string katla(std::string_view metin)
{
    std::string k(metin);
    for (char& c : k)
        if (c >= 'A' && c <= 'Z')
            c = char(c + 32);
    return k;
}

std::string_view metni(sqlite3_stmt* q, int sutun)
{
    const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(q, sutun));
    return {p ? p : "", std::size_t(sqlite3_column_bytes(q, sutun))};
}

// A line's texts in one piece: a million lines held as QStrings would take
// several times the room.
struct FisSatiri
{
    std::string metin;
    std::array<quint32, AlanSayisi + 1> sinir{};
    bool dusum = false;

    QString Alan(int a) const
    {
        return QString::fromUtf8(metin.data() + sinir[a], qsizetype(sinir[a + 1] - sinir[a]));
    }
};

}

struct Okunan
{
    QList<Birim> birimler;
    std::vector<FisSatiri> satirlar;
    // Each unit's lines in satirlar, from and to.
    std::vector<std::pair<std::size_t, std::size_t>> araliklar;
    // The material names by their class code folded.
    std::unordered_map<std::string, QString> adlar;
};

namespace {

// The lines of the side for the units, where `kosul` holds: the engine
// orders them by unit and, within the unit, as the list of a unit orders
// them (ties in the order they were written), so that each unit's lines
// are one run. Only lines of the classes in `siniflar` when it is given.
std::unique_ptr<Okunan> oku(Veritabani& ayniyat, const QList<Birim>& birimler, const SqlParcasi& kosul,
                            const QString& hangi, const std::unordered_set<std::string>* siniflar)
{
    auto o = std::make_unique<Okunan>();
    o->birimler = birimler;
    o->araliklar.assign(std::size_t(birimler.size()), {0, 0});
    if (birimler.isEmpty())
        return o;

    // The cheap tests first: most lines of the table belong to no unit, and
    // half of the rest to the other side.
    QString sql = QStringLiteral("Select ") + fisSutunlari + QStringLiteral(" from FIS Where ");
    QVariantList degerler;
    if (birimler.size() <= enCokBagli) {
        QStringList yerler;
        for (const Birim& b : birimler) {
            yerler << QStringLiteral("?");
            degerler << b.UniteKod;
        }
        sql += QStringLiteral("Unite in (") + yerler.join(QStringLiteral(", ")) + QStringLiteral(") and ");
    }
    sql += RaporSuzgecleri::SinifAyrimi(hangi) + (kosul.sql.isEmpty() ? QString() : QStringLiteral(" and ")) + kosul.sql;
    degerler += kosul.degerler;
    sql += QStringLiteral(" order by Unite, FisNo, Tarih, Satir, rowid");

    // Unite compares without regard to case: its equal values are one run.
    std::unordered_map<std::string, std::pair<std::size_t, std::size_t>> kosular;
    {
        SatirOkuyucu q(ayniyat, sql, degerler);
        std::string sonUnite;
        std::pair<std::size_t, std::size_t>* kosu = nullptr;
        while (q.Sonraki()) {
            sqlite3_stmt* k = q.Komut();
            if (sqlite3_column_type(k, 0) != SQLITE_TEXT)
                continue;
            const std::string_view unite = metni(k, 0);
            // "A1" and "a1" stand in one run.
            if (!kosu || unite != sonUnite) {
                sonUnite.assign(unite);
                kosu = &kosular.try_emplace(katla(unite), o->satirlar.size(), o->satirlar.size()).first->second;
            }
            if (siniflar && !siniflar->contains(katla(metni(k, ilkAlan + aHesapKod))))
                continue;
            FisSatiri s;
            for (int a = 0; a < AlanSayisi; ++a) {
                s.sinir[a] = quint32(s.metin.size());
                s.metin += metni(k, ilkAlan + a);
            }
            s.sinir[AlanSayisi] = quint32(s.metin.size());
            s.dusum = metni(k, 1) == "D";
            o->satirlar.push_back(std::move(s));
            kosu->second = o->satirlar.size();
        }
    }
    for (qsizetype i = 0; i < birimler.size(); ++i) {
        const auto bulunan = kosular.find(katla(birimler[i].UniteKod.toStdString()));
        if (bulunan != kosular.end())
            o->araliklar[std::size_t(i)] = bulunan->second;
    }
    return o;
}

}

QList<Birim> Birimler(Veritabani& genel, const QString& uniteAd1)
{
    const QString ad = uniteAd1.trimmed();
    QList<Birim> birimler;
    for (const QStringList& r :
         ad.isEmpty() ? genel.Satirlar(QStringLiteral("Select UniteKod, UniteAd from Unite_K "))
                      : genel.Satirlar(QStringLiteral("Select UniteKod, UniteAd from Unite_K where UniteAd = ? "), {ad}))
        birimler.append({r.at(0), r.at(1)});
    return birimler;
}

Liste::Liste(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& hangi,
             const QList<Birim>& birimler)
    : m_hangi(hangi)
{
    // One material: the lines of the classes of that name.
    std::unordered_set<std::string> siniflar;
    const QString malzeme = s.TekMalzeme.trimmed();
    if (!malzeme.isEmpty())
        for (const QStringList& r :
             genel.Satirlar(QStringLiteral("Select HesapKod from URUN_K where MalzAdi = ? "), {malzeme}))
            siniflar.insert(katla(r.at(0).toStdString()));
    m_okunan = oku(ayniyat, birimler, RaporSuzgecleri::SatirKosulu(s), hangi, malzeme.isEmpty() ? nullptr : &siniflar);
    for (const QStringList& r : genel.Satirlar(QStringLiteral("Select HesapKod, MalzAdi from URUN_K")))
        m_okunan->adlar.emplace(katla(r.at(0).toStdString()), r.at(1));
}

Liste::~Liste() = default;

qsizetype Liste::Sayi() const
{
    return m_okunan->birimler.size();
}

const Birim& Liste::Birimi(qsizetype i) const
{
    return m_okunan->birimler.at(i);
}

Sonuc Liste::Hesapla(qsizetype i) const
{
    const Okunan& o = *m_okunan;
    const Birim& b = o.birimler.at(i);
    const bool dayanikli = m_hangi == u"D";
    Sonuc sonuc;
    RaporTablosu& t = sonuc.tablo;
    t.baslik = b.UniteAd + QStringLiteral("   -   ")
               + (dayanikli ? QStringLiteral(" Dayanıklı Taşınır Liste     ") : QStringLiteral(" Birim Tüketim Liste     "))
               + QStringLiteral("  ") + QStringLiteral("             ") + b.UniteKod;
    t.tasinirAdi = b.UniteAd;
    t.tasinirKod = b.UniteKod;
    t.sutunlar = Sutunlar(m_hangi);

    const auto [bas, son] = o.araliklar[std::size_t(i)];
    sonuc.kayitVar = son > bas;
    // "D" sums what the unit received, "T" what was issued to it.
    double toplam = 0;
    int sira = 0;
    for (std::size_t k = bas; k < son; ++k) {
        const FisSatiri& f = o.satirlar[k];
        if (dayanikli && f.dusum)
            continue;
        QStringList h(HucreSayisi);
        h[Sira] = QString::number(++sira);
        h[Tarih] = f.Alan(aTarih);
        h[FisNo] = f.Alan(aFisNo);
        const std::string_view kod(f.metin.data() + f.sinir[aHesapKod], f.sinir[aHesapKod + 1] - f.sinir[aHesapKod]);
        if (const auto ad = o.adlar.find(katla(kod)); ad != o.adlar.end())
            h[MalzAdi] = ad->second;
        h[Ozellik] = f.Alan(aOzellik);
        const QString miktar = f.Alan(aMiktar);
        const QString cikan = f.Alan(aCikan);
        const double c = Val(VirgulNokta(cikan));
        h[Miktar] = c == 0 ? miktar : cikan;
        h[KimeVerildigi] = f.Alan(aKime);
        if (dayanikli)
            h[SicilNo] = f.Alan(aSicilNo);
        toplam += dayanikli ? Val(VirgulNokta(miktar)) : c;
        t.satirlar.append({SatirTuru::Kayit, h});
    }
    if (toplam != 0) {
        QStringList h(HucreSayisi);
        h[Ozellik] = QStringLiteral("Toplam : ");
        h[Miktar] = Defter::MiktarBicimi(toplam);
        t.satirlar.append({SatirTuru::Kapanis, h});
    }
    return sonuc;
}

Liste2::Liste2(Veritabani& ayniyat, const QList<Birim>& birimler)
    : m_okunan(oku(ayniyat, birimler, {}, QStringLiteral("D"), nullptr))
{
}

Liste2::~Liste2() = default;

qsizetype Liste2::Sayi() const
{
    return m_okunan->birimler.size();
}

const Birim& Liste2::Birimi(qsizetype i) const
{
    return m_okunan->birimler.at(i);
}

Sonuc Liste2::Hesapla(qsizetype i) const
{
    const Okunan& o = *m_okunan;
    const Birim& b = o.birimler.at(i);
    Sonuc sonuc;
    RaporTablosu& t = sonuc.tablo;
    t.baslik = QStringLiteral("Dayanıklık Taşınır Liste");
    t.tasinirAdi = b.UniteAd;
    t.tasinirKod = b.UniteKod;
    t.sutunlar = Sutunlar2();
    const auto [bas, son] = o.araliklar[std::size_t(i)];
    sonuc.kayitVar = son > bas;
    for (std::size_t k = bas; k < son; ++k) {
        const FisSatiri& f = o.satirlar[k];
        QStringList h(HucreSayisi2);
        h[Tarih2] = f.Alan(aTarih);
        h[FisNo2] = f.Alan(aFisNo);
        h[HesapKod2] = f.Alan(aHesapKod);
        h[Ozellik2] = f.Alan(aOzellik);
        h[SicilNo2] = f.Alan(aSicilNo);
        // val(Miktar) of the statement: no decimal comma is read.
        h[Miktar2] = Defter::MiktarBicimi(Val(f.Alan(aMiktar)));
        h[KimeVerildigi2] = f.Alan(aKime);
        t.satirlar.append({SatirTuru::Kayit, h});
    }
    return sonuc;
}

const QList<RaporSutunu>& Sutunlar(const QString& hangi)
{
    const auto sag = Qt::AlignRight;
    static const QList<RaporSutunu> dayanikli = {
        {QStringLiteral("Sıra"), 500, sag, true},     {QStringLiteral("Tarih"), 1000},
        {QStringLiteral("FişNo"), 600, sag, true},    {QStringLiteral("Malzeme Adı"), 2600},
        {QStringLiteral("Özellik"), 2200},            {QStringLiteral("Miktar"), 1000, sag, true},
        {QStringLiteral("Kime Verildiği"), 2200},     {QStringLiteral("Sicil No"), 1500}};
    // The consumption list has no register numbers: its column is captioned blank.
    static const QList<RaporSutunu> tuketim = [] {
        QList<RaporSutunu> s = dayanikli;
        s[SicilNo].baslik = QStringLiteral(" ");
        return s;
    }();
    return hangi == u"D" ? dayanikli : tuketim;
}

const QList<RaporSutunu>& Sutunlar2()
{
    const auto sag = Qt::AlignRight;
    static const QList<RaporSutunu> sutunlar = {
        {QStringLiteral("Tarih"), 1000},          {QStringLiteral("FişNo"), 600, sag, true},
        {QStringLiteral("Hesap Kod"), 1500},      {QStringLiteral("Özellik"), 2200},
        {QStringLiteral("Sicil No"), 1500},       {QStringLiteral("Miktar"), 1000, sag, true},
        {QStringLiteral("Kime Verildiği"), 2200}};
    return sutunlar;
}

}
