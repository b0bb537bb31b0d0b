#include "sayim_tutanak.h"

#include "bicim.h"
#include "val_oku.h"
#include "veritabani.h"

#include <QByteArray>
#include <QHash>

#include <sqlite3.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

namespace SayimTutanagi {

namespace {

// What a line brings to the stock; the same columns for the walk and for
// one class.
const QString fisSutunlari = QStringLiteral("HesapKod, FCinss, Miktar, Cikan");

std::string_view metin(sqlite3_stmt* q, int sutun)
{
    const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(q, sutun));
    return {p ? p : "", std::size_t(sqlite3_column_bytes(q, sutun))};
}

// Val(VirgulNokta(...)) on the column's text, read here: the engine's val
// and replace on two columns of every line cost a third of the walk.
double sayi(sqlite3_stmt* q, int sutun)
{
    const std::string_view b = metin(q, sutun);
    if (b.find(',') == std::string_view::npos)
        return ValOku(b.data(), b.data() + b.size());
    std::string noktali(b);
    std::replace(noktali.begin(), noktali.end(), ',', '.');
    return ValOku(noktali.data(), noktali.data() + noktali.size());
}

// The stock of one class: G what entered, T what was consumed (a "150"
// line's issue), D what was written off.
class Stok
{
public:
    void Ekle(sqlite3_stmt* q)
    {
        satirVar = true;
        const double m = sayi(q, 2);
        const double c = sayi(q, 3);
        G += m;
        kontrol(m);
        // As the system compares: "D" exactly, not "d".
        if (sqlite3_column_type(q, 1) == SQLITE_TEXT && metin(q, 1) == "D") {
            D += c;
            kontrol(c);
        }
        if (metin(q, 0).substr(0, 3) == "150") {
            T += c;
            kontrol(c);
        }
    }
    double K() const { return G - T - D; }
    // Every sum is exact, so the order of the lines did not change it: the
    // values are multiples of 1/1024 and stay below 2^43 together, which 53
    // bits hold. Halves and quarters are; 0,1 is not.
    bool Kesin() const { return m_kesin && m_mutlak < 0x1p43; }

    bool satirVar = false;

private:
    void kontrol(double x)
    {
        const double y = x * 1024;
        m_kesin = m_kesin && std::isfinite(y) && y == std::trunc(y);
        m_mutlak += std::fabs(x);
    }

    double G = 0, T = 0, D = 0;
    double m_mutlak = 0;
    bool m_kesin = true;
};

// One class's lines in the statement's order (FisNo, Tarih, Satir): the sums
// of a class whose figures depend on the order.
Stok sirali(Veritabani& ayniyat, const RaporSuzgeci& s, const QString& kod)
{
    SqlParcasi k = RaporSuzgecleri::SatirKosulu(s);
    k.degerler << kod;
    SatirOkuyucu q(ayniyat, QStringLiteral("Select ") + fisSutunlari + QStringLiteral(" from FIS Where ") + k.sql
                                + QStringLiteral("  and HesapKod = ? order by FisNo, Tarih, Satir, rowid  "),
                   k.degerler);
    Stok stok;
    while (q.Sonraki())
        stok.Ekle(q.Komut());
    return stok;
}

// Every class's sums in one pass over FIS in the table's own order: a
// query per class through the index costs several times the whole scan.
std::vector<Stok> tekGecis(Veritabani& ayniyat, const RaporSuzgeci& s, const QList<Defter::Sinif>& siniflar)
{
    // Codes compare as the column's NOCASE does: ASCII letters folded.
    QHash<QByteArray, qsizetype> yerler;
    for (qsizetype i = 0; i < siniflar.size(); ++i)
        yerler.insert(siniflar[i].HesapKod.toUtf8().toLower(), i);

    std::vector<Stok> stoklar(std::size_t(siniflar.size()));
    SqlParcasi k = RaporSuzgecleri::SatirKosulu(s);
    k.degerler.prepend(siniflar.last().HesapKod);
    k.degerler.prepend(siniflar.first().HesapKod);
    SatirOkuyucu q(ayniyat, QStringLiteral("Select ") + fisSutunlari
                                + QStringLiteral(" from FIS not indexed Where HesapKod between ? and ? and ") + k.sql,
                   k.degerler);
    // Lines of one voucher often share a class: the last code's place is kept.
    QByteArray sonKod;
    Stok* son = nullptr;
    bool ilk = true;
    while (q.Sonraki()) {
        const std::string_view kod = metin(q.Komut(), 0);
        if (ilk || kod != std::string_view(sonKod.constData(), std::size_t(sonKod.size()))) {
            ilk = false;
            sonKod = QByteArray(kod.data(), qsizetype(kod.size()));
            const qsizetype yer = yerler.value(sonKod.toLower(), -1);
            son = yer < 0 ? nullptr : &stoklar[std::size_t(yer)];
        }
        if (son)
            son->Ekle(q.Komut());
    }
    return stoklar;
}

}

QList<Defter::Sinif> Siniflar(Veritabani& genel, const RaporSuzgeci& s, const QString& kod)
{
    QString kosul;
    QVariantList degerler;
    const auto ekle = [&](const QString& parca, const QVariantList& d) {
        kosul += (kosul.isEmpty() ? QStringLiteral("  where ") : QStringLiteral(" and ")) + parca;
        degerler << d;
    };
    const QString malzeme = s.TekMalzeme.trimmed();
    if (!malzeme.isEmpty())
        ekle(QStringLiteral("MalzAdi = ? "), {malzeme});
    if (!s.HesapKod5.isEmpty() || !s.HesapKod6.isEmpty())
        ekle(QStringLiteral("HesapKod between ? and ? "), {s.HesapKod5, s.HesapKod6});
    if (!kod.isEmpty())
        ekle(QStringLiteral("HesapKod = ? "), {kod});
    QList<Defter::Sinif> siniflar;
    for (const QStringList& r : genel.Satirlar(
             QStringLiteral("Select HesapKod, MalzAdi, Birimi from URUN_K ") + kosul + QStringLiteral(" order by HesapKod"),
             degerler))
        siniflar.append({r.at(0), r.at(1), r.at(2)});
    return siniflar;
}

RaporTablosu Tablo(Veritabani& ayniyat, Veritabani& genel, const RaporSuzgeci& s, const QString& kod)
{
    RaporTablosu t;
    t.baslik = QStringLiteral("   ") + QStringLiteral("   S  A Y  I  M      T  U  T  A  N  A  Ğ  I   ");
    t.sutunlar = Sutunlar();
    const QList<Defter::Sinif> siniflar = Siniflar(genel, s, kod);
    if (siniflar.isEmpty())
        return t;
    // The header block names the class that FCins2 holds after the walk:
    // the last one.
    t.tasinirAdi = siniflar.last().MalzAdi;
    t.tasinirKod = siniflar.last().HesapKod;
    t.olcuBirimi = siniflar.last().Birimi;

    std::vector<Stok> stoklar = tekGecis(ayniyat, s, siniflar);
    for (qsizetype i = 0; i < siniflar.size(); ++i) {
        Stok& stok = stoklar[std::size_t(i)];
        if (!stok.satirVar)
            continue;
        if (!stok.Kesin())
            stok = sirali(ayniyat, s, siniflar[i].HesapKod);
        QStringList h(HucreSayisi);
        h[HesapKod] = siniflar[i].HesapKod;
        h[MalzAdi] = siniflar[i].MalzAdi;
        h[Birimi] = siniflar[i].Birimi;
        // The same figure from two variables of the same formula.
        h[Kayitlara] = h[Ambardaki] = h[Ortak] = h[OrtakKullanim] = SayiMetni(stok.K());
        t.satirlar.append({SatirTuru::Kayit, h});
    }

    // The general sums are never added to: the row shows zero's format.
    QStringList h(HucreSayisi);
    h[Birimi] = QStringLiteral("GenelToplam");
    h[Kayitlara] = Format(0, QStringLiteral("#####,###.#0"));
    h[Ortak] = Format(0, QStringLiteral("##,###,###.#0"));
    t.satirlar.append({SatirTuru::Kapanis, h});
    return t;
}

const QList<RaporSutunu>& Sutunlar()
{
    const auto sag = Qt::AlignRight;
    static const QList<RaporSutunu> sutunlar = {
        {QString(), 300},
        {QStringLiteral("3.Detay Kod"), 1400},
        {QStringLiteral("TaşınırAdı"), 2600},
        {QStringLiteral("Birimi"), 900},
        {QStringLiteral("KayıtlaraGöre"), 1300, sag, true},
        {QStringLiteral("Ambardaki"), 1100, sag, true},
        {QStringLiteral("KayıtdakiOrtak"), 1300, sag, true},
        {QStringLiteral("OrtakKullanım"), 1300, sag, true},
        {QStringLiteral("KişilereVerilen"), 1300},
        {QStringLiteral("Fazla"), 800},
        {QStringLiteral("Noksan"), 800},
        {QStringLiteral("Açıklama"), 1500}};
    return sutunlar;
}

}
