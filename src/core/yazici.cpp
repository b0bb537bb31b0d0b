#include "yazici.h"

#include "cikti.h"

#include <QFontMetricsF>
#include <QHash>
#include <utility>

namespace {

// The average character width of a TrueType printer font: the advances of
// the space and the small letters weighted by their frequency in English
// text, per thousand. It is what the old OS/2 table records (904 units for
// Arial) and what Tab columns were measured in; the table of Liberation Sans
// holds a plain average over all its glyphs, almost a third wider.
double OrtalamaGenislik(const QFontMetricsF& olcu)
{
    static constexpr int agirliklar[26] = {64, 14, 27, 35, 100, 20, 14, 42, 63, 3, 6, 35, 20,
                                           56, 56, 17, 4, 49, 56, 71, 31, 10, 18, 3, 18, 2};
    double toplam = 166 * olcu.horizontalAdvance(QChar(u' '));
    for (int i = 0; i < 26; ++i)
        toplam += agirliklar[i] * olcu.horizontalAdvance(QChar(char16_t(u'a' + i)));
    return toplam / 1000;
}

}

Yazici::Yazici(Cikti* cikti)
    : m_cikti(cikti)
{
}

void Yazici::CiktiSec(Cikti* cikti)
{
    m_cikti = cikti;
}

void Yazici::Print(const QList<PrintOgesi>& ogeler, SatirSonu son)
{
    for (const PrintOgesi& oge : ogeler) {
        if (const Tab* tab = std::get_if<Tab>(&oge)) {
            const double hedef = (qMax(tab->sutun, 1) - 1) * SutunGenisligi();
            if (CurrentX > hedef)
                CurrentY += TextHeight();
            CurrentX = hedef;
            continue;
        }
        const QString& metin = std::get<QString>(oge);
        if (metin.isEmpty())
            continue;
        AcikSayfa().yazilar.append({CurrentX, CurrentY, metin, FontSize, FontBold, ForeColor});
        CurrentX += TextWidth(metin);
    }
    if (son == YeniSatir) {
        CurrentX = 0;
        CurrentY += TextHeight();
    }
}

void Yazici::ZeminCiz(const Zemin& zemin)
{
    AcikSayfa().zemin = zemin;
}

void Yazici::PaintPicture(const Sayfa& sayfa)
{
    Sayfa& hedef = AcikSayfa();
    hedef.yon = sayfa.yon;
    hedef.zemin = sayfa.zemin;
    hedef.yazilar += sayfa.yazilar;
}

void Yazici::NewPage()
{
    AcikSayfa();
    SayfayiKapat();
}

void Yazici::EndDoc()
{
    const Belge belge = std::exchange(m_sayfalar, {});
    SayfayiKapat();
    if (!belge.isEmpty())
        Hedef().Yaz(belge);
}

void Yazici::KillDoc()
{
    m_sayfalar.clear();
    SayfayiKapat();
}

double Yazici::TextWidth(const QString& metin) const
{
    return Olcu().horizontalAdvance(metin);
}

double Yazici::TextHeight() const
{
    return Olcu().lineSpacing();
}

double Yazici::SutunGenisligi() const
{
    // Kept for each size: every line of a report asks for it.
    thread_local QHash<int, double> genislikler;
    const int tur = qRound(FontSize * 20) * 2 + int(FontBold);
    const auto bulunan = genislikler.constFind(tur);
    if (bulunan != genislikler.cend())
        return *bulunan;
    return genislikler[tur] = OrtalamaGenislik(Olcu());
}

const QFontMetricsF& Yazici::Olcu() const
{
    return YaziOlcusu(FontSize, FontBold);
}

Cikti& Yazici::Hedef() const
{
    if (!m_cikti || !m_cikti->Hazir())
        throw YaziciHatasi();
    return *m_cikti;
}

Sayfa& Yazici::AcikSayfa()
{
    if (!m_sayfaAcik) {
        Hedef();  // a missing printer fails before anything is recorded
        Sayfa sayfa;
        sayfa.yon = Orientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait;
        m_sayfalar.append(sayfa);
        m_sayfaAcik = true;
    }
    return m_sayfalar.last();
}

void Yazici::SayfayiKapat()
{
    m_sayfaAcik = false;
    CurrentX = 0;
    CurrentY = 0;
}
