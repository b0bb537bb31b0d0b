#include "sayfa.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHash>
#include <QPageSize>
#include <QPainter>
#include <QPen>
#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

// Metric-compatible with Arial and complete for Turkish. Loaded from its
// files so that fontconfig cannot swap in a look-alike with other widths.
QString AileYukle()
{
    const QString klasor = u"/usr/share/fonts/truetype/liberation2/"_s;
    QString aile;
    for (const QString& dosya : {u"LiberationSans-Regular.ttf"_s, u"LiberationSans-Bold.ttf"_s}) {
        const int no = QFontDatabase::addApplicationFont(klasor + dosya);
        if (no >= 0 && aile.isEmpty())
            aile = QFontDatabase::applicationFontFamilies(no).value(0);
    }
    return aile.isEmpty() ? u"Liberation Sans"_s : aile;
}

QPen Kalem(double kalinlik)
{
    return QPen(QBrush(Qt::black), kalinlik, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);
}

}

QSizeF Sayfa::KagitBoyu() const
{
    const QSizeF dikey = QPageSize(QPageSize::A4).size(QPageSize::Point) * 20;
    return yon == QPageLayout::Landscape ? dikey.transposed() : dikey;
}

const SayfaYazisi* Sayfa::YaziNerede(double x, double y) const
{
    for (const SayfaYazisi& yazi : yazilar) {
        if (qAbs(yazi.x - x) <= 0.5 && qAbs(yazi.y - y) <= 0.5)
            return &yazi;
    }
    return nullptr;
}

QString Sayfa::MetinNerede(double x, double y) const
{
    const SayfaYazisi* yazi = YaziNerede(x, y);
    return yazi ? yazi->metin : QString();
}

namespace {

struct YaziTuru
{
    QFont font;
    QFontMetricsF olcu;
};

// The fonts by pixel size and weight, kept: making a QFont and its metrics
// costs more than placing the text.
const YaziTuru& yaziTuru(double punto, bool kalin)
{
    static const QString aile = AileYukle();
    thread_local QHash<int, std::shared_ptr<const YaziTuru>> turler;
    const int boy = qMax(1, qRound(punto * 20));
    std::shared_ptr<const YaziTuru>& tur = turler[boy * 2 + int(kalin)];
    if (!tur) {
        QFont font(aile);
        font.setPixelSize(boy);
        font.setBold(kalin);
        // Printer text of the old kind: no kerning, outlines as designed.
        font.setKerning(false);
        font.setHintingPreference(QFont::PreferNoHinting);
        tur = std::make_shared<const YaziTuru>(YaziTuru{font, QFontMetricsF(font)});
    }
    return *tur;
}

}

QFont YaziFontu(double punto, bool kalin)
{
    return yaziTuru(punto, kalin).font;
}

const QFontMetricsF& YaziOlcusu(double punto, bool kalin)
{
    return yaziTuru(punto, kalin).olcu;
}

SigdirilmisYazi Sigdirilmis(const QString& metin, double punto, double yer, bool kalin)
{
    const double genislik = YaziOlcusu(punto, kalin).horizontalAdvance(metin);
    if (genislik <= yer)
        return {metin, punto};
    // Widths grow with the size, which the font takes in whole twips; the
    // rounding of the advances may ask for a twip less.
    constexpr double noktaTwip = TwipInc / 72;
    const int enKucuk = qRound(EnKucukPunto * noktaTwip);
    int boy = qMax(enKucuk, int(std::floor(punto * noktaTwip * yer / genislik)));
    while (boy > enKucuk && YaziOlcusu(boy / noktaTwip, kalin).horizontalAdvance(metin) > yer)
        --boy;
    const QFontMetricsF& olcu = YaziOlcusu(boy / noktaTwip, kalin);
    return {olcu.elidedText(metin, Qt::ElideRight, yer), boy / noktaTwip};
}

void SayfaCiz(QPainter& ressam, const Sayfa& sayfa)
{
    ressam.save();
    if (!sayfa.zemin.resim.isNull())
        ressam.drawImage(QRectF(QPointF(0, 0), sayfa.KagitBoyu() - QSizeF(2 * KenarTwip, 2 * KenarTwip)),
                         sayfa.zemin.resim);
    ressam.setBrush(Qt::NoBrush);
    for (const Cizgi& cizgi : sayfa.zemin.cizgiler) {
        ressam.setPen(Kalem(cizgi.kalinlik));
        ressam.drawLine(cizgi.konum);
    }
    for (const Kutu& kutu : sayfa.zemin.kutular) {
        ressam.setPen(Kalem(kutu.kalinlik));
        ressam.drawRect(kutu.alan);
    }
    ressam.setPen(Qt::black);
    for (const Etiket& etiket : sayfa.zemin.etiketler) {
        ressam.setFont(YaziFontu(etiket.punto, etiket.kalin));
        ressam.drawText(etiket.alan, int(etiket.hiza) | Qt::TextWordWrap, etiket.metin);
    }
    for (const SayfaYazisi& yazi : sayfa.yazilar) {
        const YaziTuru& tur = yaziTuru(yazi.punto, yazi.kalin);
        ressam.setFont(tur.font);
        ressam.setPen(yazi.renk);
        ressam.drawText(QPointF(yazi.x, yazi.y + tur.olcu.ascent()), yazi.metin);
    }
    ressam.restore();
}
