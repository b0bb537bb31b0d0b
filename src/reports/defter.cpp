#include "defter.h"

#include "bicim.h"
#include "fis_degeri.h"
#include "fis_kayit.h"
#include "fis_toplam.h"
#include "kayit.h"
#include "val_oku.h"
#include "veritabani.h"

#include <QHash>
#include <QLocale>

#include <sqlite3.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace Defter {

namespace {

const QString miktarDeseni = QStringLiteral("#####,###.#0");

// The columns the ledger reads from FIS, in this order, for one class and
// for the walk alike.
const QString fisSutunlari = QStringLiteral("HesapKod, Tarih, FisNo, Satir, IslemTur, Unite, Miktar, FCinss, "
                                        "BirimFiyat, Cikan, KDV, KimeVerildigi, Ozellik, rowid");
enum Sutun : int {
    sHesapKod, sTarih, sFisNo, sSatir, sIslemTur, sUnite, sMiktar, sFCinss, sBirimFiyat, sCikan, sKDV, sKime,
    sOzellik, sRowid
};

constexpr std::uint32_t yok = UINT32_MAX;

// The columns are read as the engine's values: one call to the statement
// (and its lock) a column rather than one for its type, text and length.
// The statement is used on this thread only.
using Deger = sqlite3_value*;

struct BaytOzeti
{
    using is_transparent = void;
    std::size_t operator()(std::string_view v) const { return std::hash<std::string_view>{}(v); }
};
using BaytHaritasi = std::unordered_map<std::string, std::uint32_t, BaytOzeti, std::equal_to<>>;

// The distinct values of one column, each kept once: a line holds its
// value's number, and every cell of the value shares one text.
class Havuz
{
public:
    std::uint32_t Al(Deger v)
    {
        const int tur = sqlite3_value_type(v);
        // Lines of one voucher follow each other: most values repeat the last.
        if (m_son != yok && ayni(m_degerler[m_son], tur, v))
            return m_son;
        std::uint32_t* yer = nullptr;
        switch (tur) {
        case SQLITE_NULL:
            yer = &m_bos;
            break;
        case SQLITE_INTEGER:
            yer = &m_tamsayilar.try_emplace(sqlite3_value_int64(v), yok).first->second;
            break;
        case SQLITE_FLOAT: {
            const double d = sqlite3_value_double(v);
            std::uint64_t bitler;
            std::memcpy(&bitler, &d, sizeof d);
            yer = &m_kesirliler.try_emplace(bitler, yok).first->second;
            break;
        }
        default: {
            BaytHaritasi& harita = m_metinler[tur == SQLITE_BLOB];
            const std::string_view b = DegerBaytlari(v);
            auto bulunan = harita.find(b);
            if (bulunan == harita.end())
                bulunan = harita.emplace(std::string(b), yok).first;
            yer = &bulunan->second;
        }
        }
        if (*yer == yok) {
            *yer = std::uint32_t(m_degerler.size());
            Kayit d{tur, 0, 0, {}};
            if (tur == SQLITE_INTEGER)
                d.tam = sqlite3_value_int64(v);
            else if (tur == SQLITE_FLOAT)
                d.kesir = sqlite3_value_double(v);
            else if (tur != SQLITE_NULL)
                d.bayt = DegerBaytlari(v);
            m_degerler.push_back(std::move(d));
            m_yazilar.emplace_back();
            m_yazildi.push_back(false);
        }
        return m_son = *yer;
    }

    // The value as the driver's QVariant gives it as text.
    const QString& Metin(std::uint32_t id)
    {
        if (!m_yazildi[id]) {
            const Kayit& d = m_degerler[id];
            QString& y = m_yazilar[id];
            if (d.tur == SQLITE_INTEGER)
                y = QString::number(d.tam);
            else if (d.tur == SQLITE_FLOAT)
                y = QString::number(d.kesir, 'g', QLocale::FloatingPointShortest);
            else if (d.tur != SQLITE_NULL)
                y = QString::fromUtf8(d.bayt.data(), qsizetype(d.bayt.size()));
            m_yazildi[id] = true;
        }
        return m_yazilar[id];
    }

    // The place of every value in the order "order by" gives the column
    // (BINARY): NULL, numbers by value, texts, blobs by their bytes.
    std::vector<std::uint32_t> Siralar() const
    {
        std::vector<std::uint32_t> dizi(m_degerler.size());
        for (std::uint32_t i = 0; i < dizi.size(); ++i)
            dizi[i] = i;
        std::sort(dizi.begin(), dizi.end(),
                  [&](std::uint32_t a, std::uint32_t b) { return karsilastir(m_degerler[a], m_degerler[b]) < 0; });
        std::vector<std::uint32_t> sira(dizi.size());
        for (std::uint32_t i = 0; i < dizi.size(); ++i)
            sira[dizi[i]] = i;
        return sira;
    }

private:
    struct Kayit
    {
        int tur;
        qint64 tam;
        double kesir;
        std::string bayt;
    };

    static bool ayni(const Kayit& d, int tur, Deger v)
    {
        if (d.tur != tur)
            return false;
        switch (tur) {
        case SQLITE_NULL:
            return true;
        case SQLITE_INTEGER:
            return d.tam == sqlite3_value_int64(v);
        case SQLITE_FLOAT: {
            const double x = sqlite3_value_double(v);
            return std::memcmp(&x, &d.kesir, sizeof x) == 0;
        }
        default:
            return DegerBaytlari(v) == d.bayt;
        }
    }

    static int sinifi(int tur)
    {
        switch (tur) {
        case SQLITE_NULL:
            return 0;
        case SQLITE_INTEGER:
        case SQLITE_FLOAT:
            return 1;
        case SQLITE_TEXT:
            return 2;
        default:
            return 3;
        }
    }

    // A whole number against a real, exactly, as the engine compares them.
    static int tamKesir(qint64 i, double r)
    {
        if (r < -9223372036854775808.0)
            return 1;
        if (r >= 9223372036854775808.0)
            return -1;
        const qint64 y = qint64(r);
        if (i != y)
            return i < y ? -1 : 1;
        const double s = double(i);
        return s < r ? -1 : s > r ? 1 : 0;
    }

    static int karsilastir(const Kayit& a, const Kayit& b)
    {
        const int sa = sinifi(a.tur);
        const int sb = sinifi(b.tur);
        if (sa != sb)
            return sa < sb ? -1 : 1;
        if (sa == 0)
            return 0;
        if (sa == 1) {
            if (a.tur == SQLITE_INTEGER && b.tur == SQLITE_INTEGER)
                return a.tam < b.tam ? -1 : a.tam > b.tam ? 1 : 0;
            if (a.tur == SQLITE_FLOAT && b.tur == SQLITE_FLOAT)
                return a.kesir < b.kesir ? -1 : a.kesir > b.kesir ? 1 : 0;
            return a.tur == SQLITE_INTEGER ? tamKesir(a.tam, b.kesir) : -tamKesir(b.tam, a.kesir);
        }
        const int k = a.bayt.compare(0, std::string::npos, b.bayt);
        return k < 0 ? -1 : k > 0 ? 1 : 0;
    }

    std::vector<Kayit> m_degerler;
    std::vector<QString> m_yazilar;
    std::vector<bool> m_yazildi;
    std::unordered_map<qint64, std::uint32_t> m_tamsayilar;
    std::unordered_map<std::uint64_t, std::uint32_t> m_kesirliler;
    BaytHaritasi m_metinler[2];  // texts, blobs
    std::uint32_t m_bos = yok;
    std::uint32_t m_son = yok;
};

// One line of FIS as the ledger uses it; the texts are numbers in the pools.
struct FisSatiri
{
    double miktar;
    double cikan;
    double fiyat;
    double kdv;
    std::uint32_t tarih, fisNo, islem, unite, kime, ozellik;
    bool dusum;
    // For the walk: the line's class group and the keys of its order.
    std::uint32_t grup, satir;
    qint64 rowid;
};
// Lines held in pieces, so that a million of them do not move to grow.
class FisSatirlari
{
public:
    FisSatiri& Ekle(const FisSatiri& s)
    {
        if (m_sayi % parca == 0)
            m_parcalar.push_back(std::make_unique<FisSatiri[]>(parca));
        FisSatiri& yer = m_parcalar.back()[m_sayi++ % parca];
        yer = s;
        return yer;
    }
    const FisSatiri& operator[](std::size_t i) const { return m_parcalar[i / parca][i % parca]; }
    std::size_t Sayi() const { return m_sayi; }

private:
    static constexpr std::size_t parca = 4096;
    std::vector<std::unique_ptr<FisSatiri[]>> m_parcalar;
    std::size_t m_sayi = 0;
};

// What the lines of a run share: the pools of their texts, the unit names
// and the row numbers, each worked out once.
class Okuma
{
public:
    Okuma(Veritabani& genel, bool kdvEkle) : m_kdvEkle(kdvEkle)
    {
        // Of two rows with one code the later wins, as AlanGetir reads it;
        // codes compare without regard to case, as the column does.
        for (const QStringList& r : genel.Satirlar(QStringLiteral("Select UniteKod, UniteAd from Unite_K")))
            m_adlar.insert(r.at(0).toCaseFolded(), r.at(1).trimmed());
    }

    FisSatiri Oku(sqlite3_stmt* q)
    {
        FisSatiri s{};
        s.miktar = DegerSayisi(sqlite3_column_value(q, sMiktar));
        s.cikan = DegerSayisi(sqlite3_column_value(q, sCikan));
        s.fiyat = DegerSayisi(sqlite3_column_value(q, sBirimFiyat));
        s.kdv = m_kdvEkle ? DegerSayisi(sqlite3_column_value(q, sKDV)) : 0;
        s.tarih = tarih.Al(sqlite3_column_value(q, sTarih));
        s.fisNo = fisNo.Al(sqlite3_column_value(q, sFisNo));
        s.islem = islem.Al(sqlite3_column_value(q, sIslemTur));
        s.unite = unite.Al(sqlite3_column_value(q, sUnite));
        s.kime = kime.Al(sqlite3_column_value(q, sKime));
        s.ozellik = ozellik.Al(sqlite3_column_value(q, sOzellik));
        s.dusum = DusumSatiri(sqlite3_column_value(q, sFCinss));
        return s;
    }

    // The unit's name for a line whose Unite is not empty.
    const QString& UniteAdi(std::uint32_t id)
    {
        if (id >= m_uniteAdlari.size())
            m_uniteAdlari.resize(id + 1);
        std::optional<QString>& ad = m_uniteAdlari[id];
        if (!ad)
            ad = m_adlar.value(unite.Metin(id).toCaseFolded());
        return *ad;
    }

    // Quantities, prices and amounts repeat from line to line (a million
    // lines hold some ten thousand amounts): each is written once.
    const QString& Bicim(double x) { return bicim(x, 0); }
    // An amount rounded to `basamak` places (2 or 3) and written.
    const QString& Tutar(double x, int basamak) { return bicim(x, basamak); }

    const QString& Sira(int n)
    {
        while (int(m_siralar.size()) <= n)
            m_siralar.push_back(QString::number(m_siralar.size()));
        return m_siralar[n];
    }

    Havuz tarih, fisNo, satir, islem, unite, kime, ozellik;

private:
    const QString& bicim(double x, int basamak)
    {
        std::uint64_t bitler;
        std::memcpy(&bitler, &x, sizeof x);
        auto& bicimler = m_bicimler[basamak == 0 ? 0 : basamak - 1];
        if (bicimler.size() > 100000)
            bicimler.clear();
        const auto [yer, yeni] = bicimler.try_emplace(bitler);
        if (yeni)
            yer->second = MiktarBicimi(basamak == 0 ? x : FisToplam::Yuvarla(x, basamak));
        return yer->second;
    }

    bool m_kdvEkle;
    QHash<QString, QString> m_adlar;
    std::vector<std::optional<QString>> m_uniteAdlari;
    std::vector<QString> m_siralar;
    std::unordered_map<std::uint64_t, QString> m_bicimler[3];  // as they stand, to two and to three places
};

// The ledger of one class from its lines in the statement's order
// (FisNo, Tarih, Satir).
Sonuc sinifDefteri(Okuma& o, const FisSatirlari& satirlar, const std::uint32_t* sira, std::size_t adet,
                   bool dayanikli, bool kdvEkle, const Sinif& sinif)
{
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
    t.satirlar.reserve(qsizetype(adet) + 1);
    sonuc.kayitVar = adet > 0;

    // The sums take the products before rounding.
    double solMiktar = 0, solTutar = 0, sagMiktar = 0, sagTutar = 0;
    int solSira = 0, sagSira = 0;
    // The transaction's text; a code beyond the list leaves the one before.
    QString islem;
    // Where a line without quantities writes when no row stands before it.
    QStringList bosta(HucreSayisi);
    for (std::size_t i = 0; i < adet; ++i) {
        const FisSatiri& s = satirlar[sira ? sira[i] : i];
        const double m = s.miktar;
        const double c = s.cikan;
        if (m != 0 || c != 0)
            t.satirlar.append({SatirTuru::Kayit, QStringList(HucreSayisi)});
        else if (!dayanikli)
            continue;
        // A durable line without quantities writes over the row before it.
        QStringList& h = t.satirlar.isEmpty() ? bosta : t.satirlar.last().hucreler;

        const QString& tarih = o.tarih.Metin(s.tarih);
        const QString& fisNo = o.fisNo.Metin(s.fisNo);
        const QString& ozellik = o.ozellik.Metin(s.ozellik);
        const double p = kdvEkle ? s.fiyat + s.fiyat / 100 * s.kdv : s.fiyat;

        if (!s.dusum && (dayanikli || m != 0)) {
            const QString& kod = o.islem.Metin(s.islem);
            bool sayiMi = false;
            const int n = kod.toInt(&sayiMi);
            if (kod.isEmpty())
                islem = QStringLiteral(" ");
            else if (sayiMi && n >= 1 && n <= 20)
                islem = FisKayit::IslemAdi(n);
            // A durable line issued without an entry shows the issue on the left.
            const double solm = dayanikli && m == 0 ? c : m;
            const double tutar = p * solm;
            h[SolSira] = o.Sira(++solSira);
            h[SolTarih] = tarih;
            h[SolFisNo] = fisNo;
            h[IslemTur] = kod.isEmpty() ? QString() : islem;
            h[SolMiktar] = o.Bicim(solm);
            h[SolFiyat] = o.Bicim(p);
            h[SolTutar] = o.Tutar(tutar, 3);
            h[Ozellik] = ozellik;
            solMiktar += m;
            solTutar += tutar;
        }

        const double sagFiyat = kdvEkle ? FisToplam::Yuvarla(p, 2) : s.fiyat;
        const auto sagYaz = [&](const QString& tur) {
            h[SagSira] = o.Sira(++sagSira);
            h[SagTarih] = tarih;
            h[SagFisNo] = fisNo;
            if (!o.unite.Metin(s.unite).isEmpty())
                h[UniteAd] = o.UniteAdi(s.unite);
            h[SagMiktar] = o.Bicim(c);
            h[SagFiyat] = o.Bicim(sagFiyat);
            h[SagTutar] = o.Tutar(sagFiyat * c, 2);
            h[KimeVerildigi] = o.kime.Metin(s.kime);
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
        if (dayanikli && s.dusum)
            sagYaz(QStringLiteral("Düşüm"));
    }

    if (solMiktar != 0 || sagMiktar != 0) {
        QStringList h(HucreSayisi);
        h[IslemTur] = QStringLiteral("SüreGelen");
        h[SolMiktar] = MiktarBicimi(solMiktar);
        h[SolTutar] = MiktarBicimi(solTutar);
        h[UniteAd] = QStringLiteral("SüreGelen");
        h[SagMiktar] = MiktarBicimi(sagMiktar);
        h[SagTutar] = MiktarBicimi(sagTutar);
        t.satirlar.append({SatirTuru::Kapanis, h});
    }
    return sonuc;
}

// The class code as the column's NOCASE compares it: ASCII letters folded.
void nocaseAnahtar(std::string_view kod, std::string& anahtar)
{
    anahtar.assign(kod);
    for (char& c : anahtar)
        if (c >= 'A' && c <= 'Z')
            c = char(c + 32);
}

// Adds one at the last digit; true when it carries out of the first.
bool birEkle(char* bas, char* son)
{
    while (son > bas) {
        --son;
        if (*son != '9') {
            ++*son;
            return false;
        }
        *son = '0';
    }
    return true;
}

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
    SqlParcasi k = RaporSuzgecleri::SatirKosulu(s);
    k.degerler << sinif.HesapKod;
    // Lines equal in the three keys keep the order they were written in.
    SatirOkuyucu q(ayniyat, QStringLiteral("Select ") + fisSutunlari + QStringLiteral(" from FIS Where ") + k.sql
                                + QStringLiteral(" and HesapKod = ? order by FisNo, Tarih, Satir, rowid  "),
                   k.degerler);
    Okuma o(genel, kdvEkle);
    FisSatirlari satirlar;
    while (q.Sonraki())
        satirlar.Ekle(o.Oku(q.Komut()));
    return sinifDefteri(o, satirlar, nullptr, satirlar.Sayi(), hangi == u"D", kdvEkle, sinif);
}

void Hepsi(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& hangi, bool kdvEkle,
           const std::function<bool(const Sinif&, Sonuc&&)>& her)
{
    const QList<Sinif> siniflar = Siniflar(genel, s, hangi);
    if (siniflar.isEmpty())
        return;

    // Each class's group of lines, by its code folded; classes come in
    // code order, so no line outside the first and last code can belong.
    BaytHaritasi gruplar;
    std::vector<std::uint32_t> grubu(siniflar.size());
    std::string anahtar;
    for (qsizetype i = 0; i < siniflar.size(); ++i) {
        nocaseAnahtar(siniflar[i].HesapKod.toStdString(), anahtar);
        grubu[i] = gruplar.try_emplace(anahtar, std::uint32_t(i)).first->second;
    }

    // One pass over the table in its own order; the engine's sort would
    // cost more than the scan, so the lines are put in order here.
    SqlParcasi k = RaporSuzgecleri::SatirKosulu(s);
    k.degerler.prepend(siniflar.last().HesapKod);
    k.degerler.prepend(siniflar.first().HesapKod);
    Okuma o(genel, kdvEkle);
    FisSatirlari satirlar;
    {
        // The statement is gone before the first class goes out: no read
        // stays open while the caller asks about each class.
        SatirOkuyucu q(ayniyat, QStringLiteral("Select ") + fisSutunlari
                                    + QStringLiteral(" from FIS not indexed Where HesapKod between ? and ? and ") + k.sql,
                       k.degerler);
        std::string sonKod;
        std::uint32_t sonGrup = yok;
        bool ilk = true;
        while (q.Sonraki()) {
            sqlite3_stmt* c = q.Komut();
            const Deger hesapKod = sqlite3_column_value(c, sHesapKod);
            if (sqlite3_value_type(hesapKod) != SQLITE_TEXT)
                continue;
            const std::string_view kod = DegerBaytlari(hesapKod);
            if (ilk || kod != sonKod) {
                ilk = false;
                sonKod.assign(kod);
                nocaseAnahtar(kod, anahtar);
                const auto bulunan = gruplar.find(anahtar);
                sonGrup = bulunan == gruplar.end() ? yok : bulunan->second;
            }
            if (sonGrup == yok)
                continue;
            FisSatiri& satir = satirlar.Ekle(o.Oku(c));
            satir.grup = sonGrup;
            satir.satir = o.satir.Al(sqlite3_column_value(c, sSatir));
            satir.rowid = sqlite3_value_int64(sqlite3_column_value(c, sRowid));
        }
    }

    // order by FisNo, Tarih, Satir inside each group; ties by rowid, as the
    // statement of one class has them.
    const std::vector<std::uint32_t> fisNoSira = o.fisNo.Siralar();
    const std::vector<std::uint32_t> tarihSira = o.tarih.Siralar();
    const std::vector<std::uint32_t> satirSira = o.satir.Siralar();
    struct Anahtar
    {
        std::uint32_t grup, fisNo, tarih, satir;
        qint64 rowid;
        std::uint32_t satirNo;
    };
    std::vector<Anahtar> anahtarlar;
    anahtarlar.reserve(satirlar.Sayi());
    for (std::size_t i = 0; i < satirlar.Sayi(); ++i) {
        const FisSatiri& f = satirlar[i];
        anahtarlar.push_back({f.grup, fisNoSira[f.fisNo], tarihSira[f.tarih], satirSira[f.satir], f.rowid,
                              std::uint32_t(i)});
    }
    std::sort(anahtarlar.begin(), anahtarlar.end(), [](const Anahtar& a, const Anahtar& b) {
        return std::tie(a.grup, a.fisNo, a.tarih, a.satir, a.rowid) < std::tie(b.grup, b.fisNo, b.tarih, b.satir, b.rowid);
    });
    std::vector<std::uint32_t> sira(anahtarlar.size());
    std::vector<std::size_t> bas(siniflar.size() + 1, 0);
    for (std::size_t i = 0; i < anahtarlar.size(); ++i) {
        sira[i] = anahtarlar[i].satirNo;
        ++bas[anahtarlar[i].grup + 1];
    }
    for (std::size_t g = 0; g + 1 < bas.size(); ++g)
        bas[g + 1] += bas[g];
    anahtarlar = {};

    const bool dayanikli = hangi == u"D";
    for (qsizetype i = 0; i < siniflar.size(); ++i) {
        const std::uint32_t g = grubu[i];
        if (!her(siniflar[i], sinifDefteri(o, satirlar, sira.data() + bas[g], bas[g + 1] - bas[g], dayanikli, kdvEkle,
                                           siniflar[i])))
            return;
    }
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

QString MiktarBicimi(double x)
{
    if (!std::isfinite(x))
        return Format(x, miktarDeseni);
    // Format's way: the fifteen significant digits of the number, rounded
    // half up at the second decimal, the whole part grouped by three.
    char e[32];
    const char* eSon = std::to_chars(e, e + sizeof e, std::fabs(x), std::chars_format::scientific, 14).ptr;
    char rakam[15];
    int n = 0;
    const char* p = e;
    for (; *p != 'e'; ++p)
        if (*p != '.')
            rakam[n++] = *p;
    int us = 0;
    std::from_chars(p + 1 + (p[1] == '+'), eSon, us);
    const int nokta = us + 1;  // digits before the decimal sign

    // The whole part, one place kept in front for a carry.
    char tam[330];
    int tamN = 1;
    for (int i = 0; i < nokta; ++i)
        tam[tamN++] = i < 15 ? rakam[i] : '0';
    // Three places of the fraction decide the two shown.
    char kesir[3];
    for (int i = 0; i < 3; ++i) {
        const int j = nokta + i;
        kesir[i] = j >= 0 && j < 15 ? rakam[j] : '0';
    }
    if (kesir[2] >= '5' && birEkle(kesir, kesir + 2) && birEkle(tam + 1, tam + tamN))
        tam[0] = '1';
    else
        tam[0] = '0';
    int ilk = 0;
    while (ilk < tamN && tam[ilk] == '0')
        ++ilk;

    char sonuc[450];
    int k = 0;
    if (x < 0)
        sonuc[k++] = '-';
    for (int i = ilk; i < tamN; ++i) {
        sonuc[k++] = tam[i];
        const int kalan = tamN - 1 - i;
        if (kalan > 0 && kalan % 3 == 0)
            sonuc[k++] = '.';
    }
    sonuc[k++] = ',';
    sonuc[k++] = kesir[0];
    sonuc[k++] = kesir[1];
    return QString::fromLatin1(sonuc, k);
}

}
