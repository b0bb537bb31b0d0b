#include "yil_sonu_denetimi.h"

#include "bicim.h"
#include "fis_toplam.h"
#include "kayit.h"
#include "veritabani.h"

#include <QHash>

#include <sqlite3.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace YilSonuDenetimi {

namespace {

const QString cinsler[] = {QStringLiteral("G"), QStringLiteral("C")};
const QString dusumCinsi = QStringLiteral("Düşüm");

std::string_view metin(sqlite3_stmt* q, int sutun)
{
    const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(q, sutun));
    return {p ? p : "", std::size_t(sqlite3_column_bytes(q, sutun))};
}

QString yazi(std::string_view b)
{
    return QString::fromUtf8(b.data(), qsizetype(b.size()));
}

std::string_view kirp(std::string_view t)
{
    while (!t.empty() && (t.front() == ' ' || t.front() == '\t'))
        t.remove_prefix(1);
    while (!t.empty() && (t.back() == ' ' || t.back() == '\t'))
        t.remove_suffix(1);
    return t;
}

// The year of Mid(Tarih,7,4); -1 for a text that is no year.
int yilSayisi(std::string_view y)
{
    if (y.size() != 4 || !std::all_of(y.begin(), y.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return -1;
    return std::atoi(std::string(y).c_str());
}

// G or C as the kind column compares them (without regard to case); -1 for
// a kind no screen writes.
int cinsNo(std::string_view c)
{
    if (c == "G" || c == "g")
        return 0;
    if (c == "C" || c == "c")
        return 1;
    return -1;
}

// Number, kind and year of a voucher in one key; numbers beyond 2^47 are
// none a user types.
constexpr qint64 enBuyukNo = qint64(1) << 47;
std::uint64_t fisAnahtari(int cins, qint64 no, int yil)
{
    return (std::uint64_t(no) << 15) | (std::uint64_t(yil & 0x3FFF) << 1) | std::uint64_t(cins);
}

// A quantity or price typed as a plain number, which Val reads whole:
// blanks only around it, a sign, digits, one point. Empty reads as 0 and is
// what an unused column holds.
bool duzSayi(std::string_view t)
{
    t = kirp(t);
    if (!t.empty() && (t.front() == '-' || t.front() == '+'))
        t.remove_prefix(1);
    bool rakam = false, nokta = false;
    for (char c : t) {
        if (c >= '0' && c <= '9')
            rakam = true;
        else if (c == '.' && !nokta)
            nokta = true;
        else
            return false;
    }
    return rakam || t.empty();
}

QString tarihMetni(qint64 gun)
{
    return QStringLiteral("%1.%2.%3")
        .arg(gun % 100, 2, 10, QLatin1Char('0'))
        .arg(gun / 100 % 100, 2, 10, QLatin1Char('0'))
        .arg(gun / 10000);
}

// The columns read from FIS, in this order.
enum Sutun : int {
    sRowid, sTarih, sYil, sGun, sFisNo, sFCins, sFCinss, sSatir, sHesapKod, sSinif, sSicilNo, sMiktar, sCikan,
    sBirimFiyat, sValMiktar, sValCikan, sKabulSayi, sKabulYil, sKabulTarih
};

// The cells of a finding's row, in the order of Bulgu.
const QList<RaporSutunu>& sutunlar()
{
    static const QList<RaporSutunu> s = {
        {QStringLiteral("Fiş"), 600},       {QStringLiteral("FişNo"), 800, Qt::AlignRight},
        {QStringLiteral("Tarih"), 1000},    {QStringLiteral("Satır"), 600, Qt::AlignRight},
        {QStringLiteral("HesapKod"), 1400}, {QStringLiteral("Malzeme Adı"), 2200},
        {QStringLiteral("Açıklama"), 4000}};
    return s;
}

class Denetci
{
public:
    Denetci(Veritabani& ayniyat, Veritabani& genel, const QString& yil)
        : m_ayniyat(ayniyat), m_yil(yil.toStdString()), m_yilNo(yilSayisi(m_yil)),
          m_yilBasi(qint64(m_yilNo) * 10000 + 101), m_yilSonu(qint64(m_yilNo) * 10000 + 1231)
    {
        for (const QStringList& r : genel.Satirlar(QStringLiteral("Select HesapKod, MalzAdi from URUN_K")))
            m_adlar.insert(r.at(0).toCaseFolded(), r.at(1));
    }

    QList<Bulgu> Calistir()
    {
        basliklariOku();
        dusumleriOku();
        satirlariOku();
        stok();
        numaralar();
        siciller();
        dusumler();
        tutarlar();
        for (int d = SicilNo; d < DenetimSayisi; ++d)
            fisSirasi(m_bulgular[d]);
        QList<Bulgu> hepsi;
        for (QList<Bulgu>& b : m_bulgular)
            hepsi += std::move(b);
        return hepsi;
    }

private:
    struct Baslik
    {
        QStringList tarihler;  // one per head row with the key
    };
    struct DusumBasi
    {
        QString FisNo, Tarih;
        bool buYil = false;
        bool isaretli = false;
    };
    // One stock movement: the class, the day as TarihSayi, the net quantity.
    // 16 bytes: a million of them are held at once.
    struct Hareket
    {
        std::uint32_t sinif;
        std::int32_t gun;
        double miktar;
    };
    // The cells of a voucher's line that its total reads, held for every
    // line of the year: the three texts in one string, apart by ayrac,
    // which for the short texts of numbers needs no allocation of its own.
    static constexpr char ayrac = '\x1f';
    struct TutarSatiri
    {
        std::uint64_t fis;
        qint64 satir, rowid;
        std::string hucreler;  // Miktar, Cikan, BirimFiyat
    };

    QString malzAdi(const QString& kod) const { return m_adlar.value(kod.toCaseFolded()); }

    Bulgu satirBulgusu(sqlite3_stmt* q, Denetim denetim, int cins, const QString& aciklama) const
    {
        const QString kod = yazi(metin(q, sHesapKod));
        return {denetim,
                cins < 0 ? yazi(metin(q, sFCins)) : cinsler[cins],
                yazi(metin(q, sFisNo)),
                yazi(metin(q, sTarih)),
                yazi(metin(q, sSatir)),
                kod,
                malzAdi(kod),
                aciklama};
    }

    void basliklariOku()
    {
        SatirOkuyucu q(m_ayniyat, QStringLiteral("Select FisNo, FCins, Tarih, Mid(Tarih,7,4) from FIS_B"));
        while (q.Sonraki()) {
            sqlite3_stmt* c = q.Komut();
            const bool sayi = sqlite3_column_type(c, 0) == SQLITE_INTEGER;
            const int cins = cinsNo(metin(c, 1));
            const qint64 no = sqlite3_column_int64(c, 0);
            if (cins < 0 || !sayi || no <= 0 || no >= enBuyukNo)
                continue;
            const int yil = yilSayisi(metin(c, 3));
            m_basliklar[fisAnahtari(cins, no, yil)].tarihler << yazi(metin(c, 2));
            if (yil == m_yilNo)
                m_numaralar[cins].push_back(no);
            if (yil != m_yilNo && std::find(m_digerYillar.begin(), m_digerYillar.end(), yil) == m_digerYillar.end())
                m_digerYillar.push_back(yil);
        }
        // The nearest year first: a voucher of 31 December with a line of
        // 1 January.
        std::sort(m_digerYillar.begin(), m_digerYillar.end(), [this](int a, int b) {
            return std::abs(a - m_yilNo) != std::abs(b - m_yilNo) ? std::abs(a - m_yilNo) < std::abs(b - m_yilNo)
                                                                  : a < b;
        });
    }

    // A write-off's lines are found by its number in KabulSayi and its year
    // in that of KabulTarih.
    static std::string dusumAnahtari(std::string_view no, std::string_view yil)
    {
        return std::string(no) + '|' + std::string(yil);
    }

    void dusumleriOku()
    {
        SatirOkuyucu q(m_ayniyat, QStringLiteral("Select FisNo, Tarih, Mid(Tarih,7,4) from DUSUM_B"));
        while (q.Sonraki()) {
            sqlite3_stmt* c = q.Komut();
            DusumBasi& d = m_dusumBaslari[dusumAnahtari(metin(c, 0), metin(c, 2))];
            d.FisNo = yazi(metin(c, 0));
            d.Tarih = yazi(metin(c, 1));
            d.buYil = metin(c, 2) == m_yil;
        }
    }

    // The class of a line by its code as the column compares it (NOCASE:
    // lower() folds the same ASCII letters); the first spelling is shown.
    std::uint32_t sinifNo(sqlite3_stmt* q)
    {
        m_anahtar.assign(metin(q, sSinif));
        const auto [yer, yeni] = m_siniflar.try_emplace(m_anahtar, std::uint32_t(m_sinifKodlari.size()));
        if (yeni)
            m_sinifKodlari.push_back(yazi(metin(q, sHesapKod)));
        return yer->second;
    }

    // One pass over FIS in its own order for every check that reads lines.
    void satirlariOku()
    {
        SatirOkuyucu q(m_ayniyat,
                       QStringLiteral("Select rowid, Tarih, Mid(Tarih,7,4), TarihSayi(Tarih), FisNo, FCins, FCinss, "
                                      "Satir, HesapKod, lower(HesapKod), SicilNo, Miktar, Cikan, BirimFiyat, "
                                      "val(Miktar), val(Cikan), KabulSayi, Mid(KabulTarih,7,4), KabulTarih from FIS"));
        static const QString alanlar[] = {QStringLiteral("Miktar"), QStringLiteral("Çıkan"),
                                          QStringLiteral("BirimFiyat")};
        while (q.Sonraki()) {
            sqlite3_stmt* c = q.Komut();
            const std::string_view yilMetni = metin(c, sYil);
            const bool buYil = yilMetni == m_yil;
            const int cins = cinsNo(metin(c, sFCins));
            const bool sayi = sqlite3_column_type(c, sFisNo) == SQLITE_INTEGER;
            const qint64 no = sqlite3_column_int64(c, sFisNo);
            const bool fisVar = cins >= 0 && sayi && no > 0 && no < enBuyukNo;
            const std::string_view kod = metin(c, sHesapKod);

            // val(NULL) is NULL, which counts as 0 here.
            if (!kod.empty() && sqlite3_column_type(c, sGun) != SQLITE_NULL
                && sqlite3_column_int64(c, sGun) <= m_yilSonu)
                m_hareketler.push_back({sinifNo(c), std::int32_t(sqlite3_column_int64(c, sGun)),
                                        sqlite3_column_double(c, sValMiktar) - sqlite3_column_double(c, sValCikan)});

            if (buYil && cins == 0 && !kod.empty() && kod.substr(0, 3) != "150") {
                const std::string_view sicil = kirp(metin(c, sSicilNo));
                if (sicil.empty())
                    m_bulgular[SicilNo] << satirBulgusu(c, SicilNo, cins, QStringLiteral("Sicil No yok"));
                else {
                    std::string satir(metin(c, sFisNo));
                    ((((satir += ayrac) += metin(c, sTarih)) += ayrac) += metin(c, sSatir)) += ayrac;
                    m_siciller[std::string(sicil)].push_back(std::move(satir += kod));
                }
            }

            if (fisVar && !m_basliklar.contains(fisAnahtari(cins, no, yilSayisi(yilMetni)))) {
                const auto basi = [&](int yil) { return m_basliklar.find(fisAnahtari(cins, no, yil)); };
                auto bas = m_basliklar.end();
                if (buYil) {
                    for (int yil : m_digerYillar)
                        if ((bas = basi(yil)) != m_basliklar.end())
                            break;
                } else {
                    bas = basi(m_yilNo);
                }
                if (bas != m_basliklar.end())
                    m_bulgular[YilDisiSatir] << satirBulgusu(
                        c, YilDisiSatir, cins,
                        QStringLiteral("Fişin başlığı %1 tarihli").arg(bas->second.tarihler.first()));
            }

            if (buYil)
                for (int i = 0; i < 3; ++i) {
                    const std::string_view sayi = metin(c, sMiktar + i);
                    if (!duzSayi(sayi)) {
                        const QString s = yazi(sayi);
                        m_bulgular[OkunmayanSayi] << satirBulgusu(
                            c, OkunmayanSayi, cins,
                            QStringLiteral("%1 \"%2\": %3 okunur").arg(alanlar[i], s, SayiMetni(Val(s))));
                    }
                }

            const std::string_view isaret = metin(c, sFCinss);
            if (isaret == "D" || isaret == "d") {
                const auto d = m_dusumBaslari.find(dusumAnahtari(metin(c, sKabulSayi), metin(c, sKabulYil)));
                if (d != m_dusumBaslari.end())
                    d->second.isaretli = true;
                else if (buYil || metin(c, sKabulYil) == m_yil)
                    m_bulgular[DusumIsareti] << satirBulgusu(
                        c, DusumIsareti, cins,
                        QStringLiteral("%1 nolu düşüm (%2) yok")
                            .arg(yazi(metin(c, sKabulSayi)), yazi(metin(c, sKabulTarih))));
            }

            if (buYil && fisVar) {
                std::string hucreler(metin(c, sMiktar));
                ((hucreler += ayrac) += metin(c, sCikan)) += ayrac;
                hucreler += metin(c, sBirimFiyat);
                m_tutarSatirlari.push_back({fisAnahtari(cins, no, m_yilNo), sqlite3_column_int64(c, sSatir),
                                            sqlite3_column_int64(c, sRowid), std::move(hucreler)});
            }
        }
    }

    // The stock of each class day by day from its first record: a class is
    // found once, on the first day of the year it ends below zero, or on
    // 1 January when it came into the year below zero.
    void stok()
    {
        std::sort(m_hareketler.begin(), m_hareketler.end(), [](const Hareket& a, const Hareket& b) {
            return a.sinif != b.sinif ? a.sinif < b.sinif : a.gun < b.gun;
        });
        // Sums of decimal quantities leave a trace of binary dust.
        constexpr double eksi = -1e-9;
        const auto son = m_hareketler.end();
        for (auto h = m_hareketler.begin(); h != son;) {
            const std::uint32_t sinif = h->sinif;
            const auto ayni = [&](auto yer) { return yer != son && yer->sinif == sinif; };
            double stok = 0;
            for (; ayni(h) && h->gun < m_yilBasi; ++h)
                stok += h->miktar;
            const bool devir = stok < eksi;
            qint64 gun = devir ? m_yilBasi : 0;
            while (gun == 0 && ayni(h)) {
                const qint64 bugun = h->gun;
                for (; ayni(h) && h->gun == bugun; ++h)
                    stok += h->miktar;
                if (stok < eksi)
                    gun = bugun;
            }
            while (ayni(h))
                ++h;
            if (gun == 0)
                continue;
            const QString& kod = m_sinifKodlari.at(sinif);
            const QString aciklama = devir ? QStringLiteral("Yıla %1 stokla girdi").arg(SayiMetni(stok))
                                           : QStringLiteral("Stok %1").arg(SayiMetni(stok));
            m_bulgular[EksiStok] << Bulgu{EksiStok, {}, {}, tarihMetni(gun), {}, kod, malzAdi(kod), aciklama};
        }
        std::sort(m_bulgular[EksiStok].begin(), m_bulgular[EksiStok].end(),
                  [](const Bulgu& a, const Bulgu& b) { return a.HesapKod < b.HesapKod; });
    }

    // The numbers of each kind in the year run from 1 without a gap, each
    // once; the number after the last is the next to come, not a gap.
    void numaralar()
    {
        for (int cins = 0; cins < 2; ++cins) {
            std::vector<qint64>& n = m_numaralar[cins];
            std::sort(n.begin(), n.end());
            qint64 onceki = 0;
            for (std::size_t i = 0; i < n.size(); ++i) {
                if (n[i] == onceki) {
                    if (i >= 2 && n[i - 2] == n[i])
                        continue;
                    const QStringList& tarihler = m_basliklar.at(fisAnahtari(cins, n[i], m_yilNo)).tarihler;
                    m_bulgular[FisNumarasi] << Bulgu{FisNumarasi, cinsler[cins], QString::number(n[i]),
                                                     tarihler.first(), {}, {}, {},
                                                     QStringLiteral("%1 fiş: %2")
                                                         .arg(tarihler.size())
                                                         .arg(tarihler.join(QStringLiteral(", ")))};
                    continue;
                }
                if (n[i] > onceki + 1) {
                    const qint64 ilk = onceki + 1, sonuncu = n[i] - 1;
                    m_bulgular[FisNumarasi] << Bulgu{
                        FisNumarasi, cinsler[cins],
                        ilk == sonuncu ? QString::number(ilk) : QStringLiteral("%1-%2").arg(ilk).arg(sonuncu),
                        {}, {}, {}, {},
                        ilk == sonuncu ? QStringLiteral("Eksik numara")
                                       : QStringLiteral("%1 numara eksik").arg(sonuncu - ilk + 1)};
                }
                onceki = n[i];
            }
        }
    }

    // The findings of a check in voucher order.
    static void fisSirasi(QList<Bulgu>& bulgular)
    {
        const auto anahtar = [](const Bulgu& b) {
            return std::tuple(b.fis, b.Tarih.mid(6, 4), b.FisNo.toLongLong(), b.Satir.section(u',', 0, 0).toLongLong());
        };
        std::stable_sort(bulgular.begin(), bulgular.end(),
                         [&](const Bulgu& a, const Bulgu& b) { return anahtar(a) < anahtar(b); });
    }

    // A register number on two lines: one finding, at the first line, with
    // the other lines of its voucher in Satır and those of other vouchers
    // named.
    // An entry line of a register number: FisNo, Tarih, Satir, HesapKod.
    static QStringList sicilSatiri(const std::string& satir)
    {
        return yazi(satir).split(QChar(ayrac));
    }

    void siciller()
    {
        for (const auto& [sicil, satirlar] : m_siciller) {
            if (satirlar.size() < 2)
                continue;
            const QStringList ilk = sicilSatiri(satirlar.front());
            QStringList ayni{ilk.at(2)}, diger;
            for (std::size_t i = 1; i < satirlar.size(); ++i) {
                const QStringList s = sicilSatiri(satirlar[i]);
                if (s.at(0) == ilk.at(0) && s.at(1) == ilk.at(1))
                    ayni << s.at(2);
                else
                    diger << QStringLiteral("%1 %2 satır %3").arg(cinsler[0], s.at(0), s.at(2));
            }
            Bulgu b{SicilNo, cinsler[0], ilk.at(0), ilk.at(1), ayni.join(u','), ilk.at(3), malzAdi(ilk.at(3)),
                    QStringLiteral("Sicil No %1, %2 satırda").arg(yazi(sicil)).arg(satirlar.size())};
            if (!diger.isEmpty())
                b.aciklama += QStringLiteral("; ayrıca ") + diger.join(QStringLiteral(", "));
            m_bulgular[SicilNo] << b;
        }
    }

    void dusumler()
    {
        for (const auto& [anahtar, d] : m_dusumBaslari)
            if (d.buYil && !d.isaretli)
                m_bulgular[DusumIsareti] << Bulgu{DusumIsareti, dusumCinsi, d.FisNo, d.Tarih, {}, {}, {},
                                                  QStringLiteral("İşaretlediği satır yok")};
    }

    // The amount total of each voucher of the year as its print screen
    // adds it up from the saved lines, and its wording.
    void tutarlar()
    {
        std::sort(m_tutarSatirlari.begin(), m_tutarSatirlari.end(), [](const TutarSatiri& a, const TutarSatiri& b) {
            return std::tie(a.fis, a.satir, a.rowid) < std::tie(b.fis, b.satir, b.rowid);
        });
        FisEkrani fis;
        for (auto s = m_tutarSatirlari.begin(); s != m_tutarSatirlari.end();) {
            const std::uint64_t anahtar = s->fis;
            const int cins = int(anahtar & 1);
            fis.Hangi = cinsler[cins];
            fis.Satirlar.clear();
            for (; s != m_tutarSatirlari.end() && s->fis == anahtar; ++s) {
                const std::string_view hucreler = s->hucreler;
                const std::size_t a = hucreler.find(ayrac), b = hucreler.find(ayrac, a + 1);
                QStringList h(FisSutun::Cikan + 1);
                h[FisSutun::Miktar] = yazi(hucreler.substr(0, a));
                h[FisSutun::Cikan] = yazi(hucreler.substr(a + 1, b - a - 1));
                h[FisSutun::BirimFiyat] = yazi(hucreler.substr(b + 1));
                fis.Satirlar << h;
            }
            const auto bas = m_basliklar.find(anahtar);
            if (bas == m_basliklar.end())
                continue;
            const QString tutar = FisToplam::AraToplam(fis).Text3;
            QString hata;
            FisToplam::HarfYazma(tutar, hata);
            if (!hata.isEmpty())
                m_bulgular[YaziylaTutar] << Bulgu{YaziylaTutar, cinsler[cins], QString::number(anahtar >> 15),
                                                  bas->second.tarihler.first(), {}, {}, {},
                                                  QStringLiteral("%1: %2").arg(tutar, hata)};
        }
    }

    Veritabani& m_ayniyat;
    const std::string m_yil;
    const int m_yilNo;
    const qint64 m_yilBasi, m_yilSonu;
    QHash<QString, QString> m_adlar;
    std::unordered_map<std::uint64_t, Baslik> m_basliklar;
    std::vector<int> m_digerYillar;
    std::vector<qint64> m_numaralar[2];  // of the year, by kind
    std::unordered_map<std::string, DusumBasi> m_dusumBaslari;
    std::unordered_map<std::string, std::uint32_t> m_siniflar;
    QStringList m_sinifKodlari;
    std::string m_anahtar;
    std::vector<Hareket> m_hareketler;
    // The durable entry lines of the year by register number, each as
    // sicilSatiri reads it: only a number used twice becomes a finding.
    std::unordered_map<std::string, std::vector<std::string>> m_siciller;
    std::vector<TutarSatiri> m_tutarSatirlari;
    QList<Bulgu> m_bulgular[DenetimSayisi];
};

}

QList<Bulgu> Denetle(Veritabani& ayniyat, Veritabani& genel, const QString& yil)
{
    return Denetci(ayniyat, genel, yil).Calistir();
}

QString Sonucu(Denetim d, qsizetype bulgular)
{
    static const QString adlar[DenetimSayisi] = {
        QStringLiteral("Eksiye düşen stok"),
        QStringLiteral("Fiş numaralarında boşluk ya da tekrar"),
        QStringLiteral("Sicil No'su olmayan ya da iki satırda kullanılan dayanıklı giriş satırları"),
        QStringLiteral("Fişinin yılı dışında tarihli satırlar"),
        QStringLiteral("Düz sayı olarak yazılmamış miktar ve fiyatlar"),
        QStringLiteral("Satırı ya da düşüm kaydı olmayan düşüm işaretleri"),
        QStringLiteral("Tutarı yazıyla yazılamayan fişler"),
    };
    const QString sonuc = bulgular == 0 ? QStringLiteral("yok") : QStringLiteral("%1 bulgu").arg(bulgular);
    return QStringLiteral("%1. %2: %3").arg(int(d) + 1).arg(adlar[d], sonuc);
}

RaporTablosu Tablo(const QList<Bulgu>& bulgular, const QString& yil)
{
    RaporTablosu t;
    t.baslik = QStringLiteral("YIL SONU DENETİMİ  -  %1").arg(yil);
    t.sutunlar = sutunlar();
    for (int d = 0; d < DenetimSayisi; ++d) {
        QList<RaporSatiri> satirlar;
        for (const Bulgu& b : bulgular)
            if (b.denetim == d)
                satirlar.append(
                    {SatirTuru::Kayit, {b.fis, b.FisNo, b.Tarih, b.Satir, b.HesapKod, b.MalzAdi, b.aciklama}});
        t.satirlar.append({SatirTuru::Baslik, {Sonucu(Denetim(d), satirlar.size())}});
        t.satirlar += satirlar;
    }
    return t;
}

RaporKagidi Kagit()
{
    RaporKagidi k;
    k.ilkSayac = 8;
    k.sinir = 46;
    k.devam = 5;
    k.ayiricilar = {{{1, QString(180, u'-')}}};
    static const int tablar[] = {1, 6, 14, 26, 38, 54, 82};
    for (int i = 0; i < int(std::size(tablar)); ++i)
        k.basliklar << TabMetin{tablar[i], sutunlar().at(i).baslik};
    k.satir = [](const RaporSatiri& satir, int&) -> std::optional<KagitSatiri> {
        if (satir.tur == SatirTuru::Baslik)
            return KagitSatiri{{1, satir.hucreler.value(0)}};
        KagitSatiri s;
        for (int i = 0; i < int(std::size(tablar)); ++i)
            s << TabMetin{tablar[i], satir.hucreler.value(i)};
        return s;
    };
    return k;
}

}
