#include "rapor_belgesi.h"

#include "cikti.h"
#include "kayit.h"
#include "sayfa.h"
#include "yazici.h"

namespace {

// The printer's colour 255.
const QColor baslikRengi(255, 0, 0);

// The rows of a report on paper, through the printing layer: the title, the
// header block, then the band, separators and headings at the head of every
// page, the rows under the line counter, and the closing block.
class KagitBelgesi : public RaporBelgesi
{
public:
    // akis hands every table's pages to the output as soon as they are
    // drawn, for an output that takes a document in pieces.
    KagitBelgesi(Cikti& cikti, const RaporKagidi& kagit, double yaziBoy, int yon, int& sayfaNo, bool akis = false)
        // A size below the readable floor (an empty or mistyped YaziBoy reads
        // as 0) would put every column on the first.
        : m_p(&cikti), m_kagit(kagit), m_yaziBoy(qMax(yaziBoy, EnKucukPunto)), m_yon(yon), m_sayfaNo(sayfaNo),
          m_akis(akis)
    {
        Sayfa olcu;
        olcu.yon = yon == 2 ? QPageLayout::Landscape : QPageLayout::Portrait;
        m_alan = olcu.KagitBoyu() - QSizeF(2 * KenarTwip, 2 * KenarTwip);
    }
    // A document never finished sends nothing to its output.
    ~KagitBelgesi() override { m_p.KillDoc(); }

    void Ekle(const RaporTablosu& tablo) override
    {
        // Every table starts a page of its own, numbered on as F4 numbers them.
        if (m_tabloVar) {
            if (!m_akis)
                m_p.NewPage();
            ++m_sayfaNo;
        }
        m_tabloVar = true;
        m_p.Orientation = m_yon;
        m_p.FontSize = 14;
        m_p.ForeColor = baslikRengi;
        SatirYaz({{1, tablo.baslik}});
        m_p.FontSize = m_yaziBoy;
        m_p.ForeColor = Qt::black;
        for (const KagitSatiri& satir : tablo.ustBilgi)
            SatirYaz(satir);
        SayfaBasi(true);

        int sayac = m_kagit.ilkSayac;
        int sira = 0;
        for (const RaporSatiri& satir : tablo.satirlar) {
            // A row that would run off the paper starts the page early.
            if (m_p.CurrentY + m_p.TextHeight() > m_alan.height())
                SonrakiSayfa(sayac);
            if (const std::optional<KagitSatiri> basilan = m_kagit.satir(satir, sira))
                SatirYaz(*basilan);
            if (++sayac > m_kagit.sinir)
                SonrakiSayfa(sayac);
        }
        for (const KagitSatiri& satir : m_kagit.kapanis) {
            if (m_p.CurrentY + m_p.TextHeight() > m_alan.height())
                SonrakiSayfa(sayac);
            SatirYaz(satir);
        }
        if (m_akis)
            m_p.EndDoc();
    }

    void Bitir() override { m_p.EndDoc(); }

private:
    void SayfaBasi(bool ilk)
    {
        if (m_kagit.bant)
            SatirYaz(m_kagit.bant(m_sayfaNo));
        const QList<BasSatiri>& bas = ilk || m_kagit.devamBas.isEmpty() ? m_kagit.ilkBas : m_kagit.devamBas;
        if (!bas.isEmpty()) {
            for (qsizetype i = 0; i < bas.size(); ++i) {
                m_p.FontBold = bas[i].kalin;
                SatirYaz(i + 1 < bas.size() ? bas[i].satir : SayfaNolu(bas[i].satir));
            }
            m_p.FontBold = false;
            return;
        }
        for (const KagitSatiri& satir : m_kagit.ayiricilar)
            SatirYaz(satir);
        m_p.FontBold = true;
        SatirYaz(SayfaNolu(m_kagit.basliklar));
        m_p.FontBold = false;
    }

    // The last heading line, with the page number where the form prints it.
    KagitSatiri SayfaNolu(KagitSatiri satir) const
    {
        if (m_kagit.sayfaNoBaslikta && !satir.isEmpty())
            satir.last().metin += QString::number(m_sayfaNo);
        return satir;
    }

    void SonrakiSayfa(int& sayac)
    {
        m_p.NewPage();
        ++m_sayfaNo;
        SayfaBasi(false);
        sayac = m_kagit.devam;
    }

    // One line of texts at their Tab columns. A text wider than the room up
    // to the next one, or to the edge of the paper, is set smaller and then
    // cut, so that nothing prints over its neighbour.
    void SatirYaz(const KagitSatiri& satir)
    {
        const double punto = m_p.FontSize;
        const double sutun = m_p.SutunGenisligi();
        const double y = m_p.CurrentY;
        const double ust = YaziOlcusu(punto, m_p.FontBold).ascent();
        for (qsizetype i = 0; i < satir.size(); ++i) {
            const double x = (qMax(satir[i].tab, 1) - 1) * sutun;
            double sag = m_alan.width();
            for (qsizetype j = i + 1; j < satir.size(); ++j) {
                const double sonraki = (qMax(satir[j].tab, 1) - 1) * sutun;
                if (sonraki > x) {
                    sag = qMin(sag, sonraki);
                    break;
                }
            }
            const SigdirilmisYazi s = Sigdirilmis(satir[i].metin, punto, sag - x, m_p.FontBold);
            m_p.FontSize = s.punto;
            m_p.CurrentX = x;
            // Smaller letters stand on the line's baseline.
            m_p.CurrentY = y + ust - YaziOlcusu(s.punto, m_p.FontBold).ascent();
            m_p.Print({s.metin}, AyniSatir);
        }
        m_p.FontSize = punto;
        m_p.CurrentX = 0;
        m_p.CurrentY = y + m_p.TextHeight();
    }

    Yazici m_p;
    RaporKagidi m_kagit;
    double m_yaziBoy;
    int m_yon;
    int& m_sayfaNo;
    bool m_akis;
    QSizeF m_alan;
    bool m_tabloVar = false;
};

// The paper written to a PDF file, a table at a time.
class PdfBelgesi : public RaporBelgesi
{
public:
    PdfBelgesi(const QString& dosya, const RaporKagidi& kagit, double yaziBoy, int yon, int& sayfaNo)
        : m_cikti(dosya), m_kagit(m_cikti, kagit, yaziBoy, yon, sayfaNo, true)
    {
    }
    void Ekle(const RaporTablosu& tablo) override { m_kagit.Ekle(tablo); }
    void Bitir() override
    {
        m_kagit.Bitir();
        m_cikti.Kapat();
    }

private:
    PdfAkisi m_cikti;
    KagitBelgesi m_kagit;
};

}

namespace RaporBelgeleri {

std::unique_ptr<RaporBelgesi> Kagit(Cikti& cikti, const RaporKagidi& kagit, double yaziBoy, int yon, int& sayfaNo)
{
    return std::make_unique<KagitBelgesi>(cikti, kagit, yaziBoy, yon, sayfaNo);
}

std::unique_ptr<RaporBelgesi> Pdf(const QString& dosya, const RaporKagidi& kagit, double yaziBoy, int yon,
                                  int& sayfaNo)
{
    return std::make_unique<PdfBelgesi>(dosya, kagit, yaziBoy, yon, sayfaNo);
}

QString Donem(const RaporSuzgeci& s)
{
    return s.Tarih.toString(QStringLiteral("dd.MM.yyyy")) + QStringLiteral(" -")
           + s.Tarih1.toString(QStringLiteral("dd.MM.yyyy"));
}

QString Sagda(QString hucre, int genislik)
{
    return SagaDaya(hucre, genislik);
}

const QStringList& Etiketler()
{
    static const QStringList etiketler = {
        QStringLiteral("İl ve İlçenin                  Adı  : "),
        QStringLiteral("Harcama Biriminin      Adı  : "),
        QStringLiteral("Ambarın                       Adı  : "),
        QStringLiteral("Muhasebe Biriminin     Adı  : "),
    };
    return etiketler;
}

QList<KagitSatiri> SayimKurulu(const SabitSatiri& sabit)
{
    const auto alan = [&](const char* ad) { return sabit.value(QString::fromLatin1(ad)).trimmed(); };
    return {{{15, QStringLiteral("S       A       Y       I       M                    K       U       R       U       L       U")}},
            {},
            {},
            {},
            {{5, alan("SayimBaskan")}, {40, alan("SayimUye1")}, {70, alan("SayimUye2")}},
            {{5, alan("SayimBaskanUnvan")}, {30, alan("SayimUyeUnvan1")}, {70, alan("SayimUyeUnvan2")}}};
}

QList<KagitSatiri> UstBilgi(const SabitSatiri& sabit, const RaporTablosu& tablo, const QStringList& etiketler)
{
    const auto deger = [&](const char* alan) { return sabit.value(QString::fromLatin1(alan)).trimmed(); };
    const QString kod = QStringLiteral(" Kod : ");
    return {
        {{2, etiketler.value(0) + deger("ilAdi")},
         {80, kod + deger("ilKod")},
         {106, QStringLiteral("Taşınır Adi   : ") + tablo.tasinirAdi}},
        {{2, etiketler.value(1) + deger("BirimAd")},
         {80, kod + deger("BirimKod")},
         {106, QStringLiteral("Taşınır Kod  : ") + tablo.tasinirKod}},
        {{2, etiketler.value(2)}, {80, kod}, {106, etiketler.value(4, QStringLiteral(" Ölçü Birimi  : ")) + tablo.olcuBirimi}},
        {{2, etiketler.value(3) + deger("MuhasebeBirimiAdi")}, {80, kod + deger("MuhasebeBirimiKod")}},
    };
}

}
