#include "cikti.h"

#include "kullanici_dosyasi.h"

#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryFile>

void BellekCikti::Yaz(const Belge& belge)
{
    belgeler.append(belge);
}

PdfCikti::PdfCikti(const QString& dosya)
    : m_dosya(dosya)
{
}

void PdfCikti::Yaz(const Belge& belge)
{
    PdfAkisi akis(m_dosya);
    akis.Yaz(belge);
    akis.Kapat();
}

struct PdfAkisi::Ic
{
    explicit Ic(const QString& dosya) : dosya(dosya), yazar(&this->dosya.Gecici()), cizici(yazar)
    {
        const double kenar = KenarTwip / 20;
        yazar.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                        QMarginsF(kenar, kenar, kenar, kenar), QPageLayout::Point));
    }
    KullaniciDosyasi dosya;
    QPdfWriter yazar;
    SayfaCizici cizici;
};

PdfAkisi::PdfAkisi(const QString& dosya)
    : m_dosya(dosya)
{
}

PdfAkisi::~PdfAkisi() = default;

void PdfAkisi::Yaz(const Belge& belge)
{
    // The printing path drops the document on a printer failure.
    try {
        if (!m_ic)
            m_ic = std::make_unique<Ic>(m_dosya);
        if (!m_ic->cizici.Ciz(belge))
            throw m_ic->dosya.Yazilamadi(QStringLiteral("belge eksik kaldı"));
    } catch (const Hata& h) {
        throw YaziciHatasi(h.Mesaj());
    }
}

void PdfAkisi::Kapat()
{
    if (!m_ic)
        Yaz({});
    try {
        // Checked as it lies on disk, since the painter reports no write error.
        const bool bitti = m_ic->cizici.Bitir();
        QTemporaryFile& gecici = m_ic->dosya.Gecici();
        gecici.close();
        m_ic->dosya.Yerlestir(bitti && gecici.error() == QFileDevice::NoError && PdfTamam(gecici.fileName()));
    } catch (const Hata& h) {
        throw YaziciHatasi(h.Mesaj());
    }
}

bool PdfTamam(const QString& dosya)
{
    QFile f(dosya);
    if (!f.open(QIODevice::ReadOnly))
        return false;
    const QByteArray icerik = f.readAll();
    return icerik.startsWith("%PDF-") && icerik.trimmed().endsWith("%%EOF");
}

SayfaCizici::SayfaCizici(QPagedPaintDevice& cihaz)
    : m_cihaz(cihaz)
{
    m_cihaz.setPageSize(QPageSize(QPageSize::A4));
}

SayfaCizici::~SayfaCizici() = default;

bool SayfaCizici::Ciz(const Belge& belge)
{
    for (const Sayfa& sayfa : belge) {
        m_cihaz.setPageOrientation(sayfa.yon);
        if (!m_ressam) {
            m_ressam = std::make_unique<QPainter>();
            if (!m_ressam->begin(&m_cihaz))
                return false;
        } else if (!m_cihaz.newPage()) {
            return false;
        }
        m_ressam->setTransform(QTransform::fromScale(m_cihaz.logicalDpiX() / TwipInc,
                                                     m_cihaz.logicalDpiY() / TwipInc));
        SayfaCiz(*m_ressam, sayfa);
    }
    return true;
}

bool SayfaCizici::Bitir()
{
    return !m_ressam || m_ressam->end();
}

bool BelgeCiz(QPagedPaintDevice& cihaz, const Belge& belge)
{
    SayfaCizici cizici(cihaz);
    return cizici.Ciz(belge) && cizici.Bitir();
}
