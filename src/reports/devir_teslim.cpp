#include "devir_teslim.h"

#include "fis_degeri.h"
#include "kayit.h"
#include "rapor_belgesi.h"
#include "sql_islevleri.h"
#include "veritabani.h"

#include <QByteArray>
#include <QHash>

#include <algorithm>
#include <numeric>

namespace DevirTeslimTutanagi {

namespace {

// A spelling of a description while the lines are read, by its bytes.
struct Grup
{
    QByteArray ad;
    QByteArray sonKod;
    QString birimi;  // that of its first line
    std::vector<FisSatiri> satirlar;
};

QByteArray baytlar(sqlite3_stmt* q, int sutun)
{
    const std::string_view b = DegerBaytlari(sqlite3_column_value(q, sutun));
    return QByteArray(b.data(), qsizetype(b.size()));
}

}

RaporSuzgeci Suzgec(RaporSuzgeci s)
{
    s.Tarih = QDate(1900, 1, 1);
    s.Ozellik = s.Ozellik.trimmed();
    return s;
}

Satirlar Oku(Veritabani& ayniyat, const RaporSuzgeci& s)
{
    SqlParcasi k = RaporSuzgecleri::SatirKosulu(s);
    if (!s.HesapKod5.isEmpty() || !s.HesapKod6.isEmpty()) {
        k.sql += QStringLiteral(" and HesapKod between ? and ? ");
        k.degerler << s.HesapKod5 << s.HesapKod6;
    }
    // Read in the order written and put in the description's order here:
    // the engine's sort by the Turkish collation costs more than the walk.
    SatirOkuyucu q(ayniyat,
                   QStringLiteral("Select Ozellik, HesapKod, Miktar, Cikan, FCinss, Birimi From FIS Where ") + k.sql
                       + QStringLiteral(" order by rowid"),
                   k.degerler);
    std::vector<Grup> gruplar;
    QHash<QByteArray, std::size_t> yerler;
    // Lines of one voucher often share a description: the last one's place
    // is kept.
    Grup* son = nullptr;
    while (q.Sonraki()) {
        sqlite3_stmt* satir = q.Komut();
        const std::string_view ad = DegerBaytlari(sqlite3_column_value(satir, 0));
        if (!son || ad != std::string_view(son->ad.constData(), std::size_t(son->ad.size()))) {
            const QByteArray anahtar(ad.data(), qsizetype(ad.size()));
            auto yer = yerler.find(anahtar);
            if (yer == yerler.end()) {
                yer = yerler.insert(anahtar, gruplar.size());
                gruplar.push_back({anahtar, {}, QString::fromUtf8(baytlar(satir, 5)), {}});
            }
            son = &gruplar[*yer];
        }
        son->satirlar.push_back({DegerSayisi(sqlite3_column_value(satir, 2)),
                                 DegerSayisi(sqlite3_column_value(satir, 3)),
                                 DusumSatiri(sqlite3_column_value(satir, 4))});
        const std::string_view kod = DegerBaytlari(sqlite3_column_value(satir, 1));
        if (kod != std::string_view(son->sonKod.constData(), std::size_t(son->sonKod.size())))
            son->sonKod = QByteArray(kod.data(), qsizetype(kod.size()));
    }

    std::vector<QString> adlar;
    for (const Grup& g : gruplar)
        adlar.push_back(QString::fromUtf8(g.ad));
    std::vector<std::size_t> sira(gruplar.size());
    std::iota(sira.begin(), sira.end(), std::size_t(0));
    std::sort(sira.begin(), sira.end(), [&](std::size_t a, std::size_t b) {
        const int fark = SqlIslevleri::TurkceKarsilastir(adlar[a], adlar[b]);
        return fark != 0 ? fark < 0 : gruplar[a].ad < gruplar[b].ad;
    });
    Satirlar sonuc;
    for (const std::size_t i : sira) {
        if (sonuc.malzemeler.isEmpty())
            sonuc.birimi = gruplar[i].birimi;
        sonuc.malzemeler.append({adlar[i], QString::fromUtf8(gruplar[i].sonKod), std::move(gruplar[i].satirlar)});
    }
    return sonuc;
}

RaporTablosu Tablo(Veritabani& ayniyat, const RaporSuzgeci& panel, bool biteniGoster)
{
    const RaporSuzgeci s = Suzgec(panel);
    RaporTablosu t;
    t.baslik = QStringLiteral("   A M B A R    D E V İ R    V E    T E S L İ M    T U T A N A Ğ I   ");
    t.ustBilgi = {{{2, QStringLiteral("Ambar Devir ve Teslim Tutanağı            ") + RaporBelgeleri::Donem(s)}}};
    t.sutunlar = Sutunlar();
    const Satirlar satirlar = Oku(ayniyat, s);
    if (satirlar.malzemeler.isEmpty())
        return t;

    QString ozellik = satirlar.malzemeler.first().ozellik;
    QString kod;
    double G = 0, C = 0, K = 0;
    const auto ekle = [&] {
        QStringList h(HucreSayisi);
        h[Sira] = QString::number(t.satirlar.size() + 1);
        h[HesapKod] = kod;
        h[Ozellik] = ozellik;
        h[Birimi] = satirlar.birimi;
        h[SayimMiktari] = h[BulunmasiGereken] = ParaYaz(K);
        t.satirlar.append({SatirTuru::Kayit, h});
    };
    for (const Malzeme& m : satirlar.malzemeler) {
        // An empty description closes nothing and has no row of its own. A
        // used-up material's sums are not reset: they run on into the next.
        if (!m.ozellik.isEmpty() && m.ozellik != ozellik && !ozellik.isEmpty() && (biteniGoster || K != 0)) {
            ekle();
            G = C = 0;
        }
        ozellik = m.ozellik;
        kod = m.sonHesapKod;
        for (const FisSatiri& f : m.satirlar) {
            G += f.miktar;
            C += f.cikan;
        }
        K = G - C;
    }
    // The last material has its row whatever its stock.
    if (!ozellik.isEmpty())
        ekle();
    return t;
}

const QList<RaporSutunu>& Sutunlar()
{
    const auto sag = Qt::AlignRight;
    static const QList<RaporSutunu> sutunlar = {
        {QString(), 200},
        {QStringLiteral("Sıra"), 500},
        {QStringLiteral("Taşınır Kod"), 1400},
        {QStringLiteral("Taşınır Adı"), 3000},
        {QStringLiteral("Ölçü Birimi"), 900},
        {QStringLiteral("Sayım Miktarı"), 1300, sag, true},
        {QStringLiteral("Bulunması Gereken"), 1500, sag, true},
        {QStringLiteral("Fazla Miktar"), 1100},
        {QStringLiteral("Noksan Miktar"), 1100}};
    return sutunlar;
}

}
