#include "form_cizimi.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace {

constexpr double NoktaTwip = TwipInc / 72;

const QFontMetricsF& Olcu(double punto, bool kalin)
{
    return YaziOlcusu(punto, kalin);
}

QFontMetricsF Olcu(const SayfaYazisi& yazi)
{
    return Olcu(yazi.punto, yazi.kalin);
}

// Where the letters of a line of `punto` text put at y stand.
double Taban(double y, double punto, bool kalin)
{
    return y + Olcu(punto, kalin).ascent();
}

// What a rule covers on paper: its pen reaches half its width past the line
// on every side, the ends included (square caps).
QRectF CizgiAlani(const QLineF& cizgi, double kalinlik)
{
    const double yari = kalinlik / 2;
    return QRectF(cizgi.p1(), cizgi.p2()).normalized().adjusted(-yari, -yari, yari, yari);
}

QList<QRectF> KenarAlanlari(const Kutu& kutu)
{
    const QRectF& a = kutu.alan;
    return {CizgiAlani(QLineF(a.topLeft(), a.topRight()), kutu.kalinlik),
            CizgiAlani(QLineF(a.bottomLeft(), a.bottomRight()), kutu.kalinlik),
            CizgiAlani(QLineF(a.topLeft(), a.bottomLeft()), kutu.kalinlik),
            CizgiAlani(QLineF(a.topRight(), a.bottomRight()), kutu.kalinlik)};
}

// Rounding of the metrics must not make a text that touches a rule cross it.
constexpr double Pay = 0.01;

bool YerindeMi(const QRectF& alan, const Zemin& zemin)
{
    const QRectF ic = alan.adjusted(Pay, Pay, -Pay, -Pay);
    const bool kutuda = std::any_of(zemin.kutular.begin(), zemin.kutular.end(), [&](const Kutu& kutu) {
        const double yari = kutu.kalinlik / 2;
        return kutu.alan.adjusted(yari, yari, -yari, -yari).contains(ic);
    });
    if (!kutuda)
        return false;
    for (const Cizgi& cizgi : zemin.cizgiler)
        if (CizgiAlani(cizgi.konum, cizgi.kalinlik).intersects(ic))
            return false;
    for (const Kutu& kutu : zemin.kutular)
        for (const QRectF& kenar : KenarAlanlari(kutu))
            if (kenar.intersects(ic))
                return false;
    return true;
}

}

void FormCizimi::Yaz(Sayfa& sayfa, double x, double y, const QString& metin, double punto, bool kalin)
{
    if (metin.isEmpty())
        return;
    SayfaYazisi yazi;
    yazi.x = x;
    yazi.y = y;
    yazi.metin = metin;
    yazi.punto = punto;
    yazi.kalin = kalin;
    sayfa.yazilar.append(yazi);
}

void FormCizimi::Sigdir(Sayfa& sayfa, double x, double y, const QString& metin, double punto, double sag, bool kalin)
{
    // The thicker of the rules a box can end at.
    const SigdirilmisYazi s = Sigdirilmis(metin, punto, sag - CerceveCizgisi / 2 - x, kalin);
    Yaz(sayfa, x, Taban(y, punto, kalin) - Olcu(s.punto, kalin).ascent(), s.metin, s.punto, kalin);
}

double FormCizimi::Ardindan(const SayfaYazisi& onceki, double x, const QString& metin, double punto, bool kalin)
{
    SayfaYazisi yazi = onceki;
    yazi.x = x;
    yazi.metin = metin;
    yazi.punto = punto;
    yazi.kalin = kalin;
    const double bosluk = Olcu(punto, kalin).horizontalAdvance(u' ');
    return x + qMax(0.0, MurekkepAlani(onceki).right() + bosluk - MurekkepAlani(yazi).left());
}

void FormCizimi::Sil(Sayfa& sayfa, double x, double y, double punto, bool kalin)
{
    const double taban = Taban(y, punto, kalin);
    sayfa.yazilar.removeIf([&](const SayfaYazisi& yazi) {
        return qAbs(yazi.x - x) <= 0.5 && qAbs(Taban(yazi.y, yazi.punto, yazi.kalin) - taban) <= 0.5;
    });
}

void FormCizimi::Kutu(Zemin& zemin, double sol, double ust, double sag, double alt, double kalinlik)
{
    zemin.kutular.append({QRectF(QPointF(sol, ust), QPointF(sag, alt)), kalinlik});
}

void FormCizimi::Yatay(Zemin& zemin, double y, double sol, double sag, double kalinlik)
{
    zemin.cizgiler.append({QLineF(sol, y, sag, y), kalinlik});
}

void FormCizimi::Dikey(Zemin& zemin, double x, double ust, double alt, double kalinlik)
{
    zemin.cizgiler.append({QLineF(x, ust, x, alt), kalinlik});
}

void FormCizimi::Etiket(Zemin& zemin, const QRectF& alan, const QString& metin, double punto, bool kalin,
                        Qt::Alignment hiza)
{
    zemin.etiketler.append({alan, metin, punto, kalin, hiza});
}

QRectF FormCizimi::Alan(double sol, double ust, double sag, double alt, double pay)
{
    return QRectF(QPointF(sol + pay, ust), QPointF(sag - pay, alt));
}

void FormCizimi::SolaEtiket(Zemin& zemin, const QRectF& alan, const QString& metin, double punto, bool kalin)
{
    Etiket(zemin, alan, metin, punto, kalin, Qt::AlignLeft | Qt::AlignVCenter);
}

void FormCizimi::Basliklar(Zemin& zemin, const QList<double>& sutunlar, double ust, double alt,
                           const QStringList& basliklar, double punto)
{
    // Labels keep clear of the cell's rules.
    constexpr double ic = 30;
    for (qsizetype i = 0; i < basliklar.size() && i + 1 < sutunlar.size(); ++i) {
        Kutu(zemin, sutunlar[i], ust, sutunlar[i + 1], alt);
        Etiket(zemin, QRectF(QPointF(sutunlar[i] + ic, ust + ic), QPointF(sutunlar[i + 1] - ic, alt - ic)),
               basliklar[i], punto, true);
    }
}

void FormCizimi::Govde(Zemin& zemin, const QList<double>& sutunlar, double ust, double adim, int sayi)
{
    const double alt = ust + adim * sayi;
    Kutu(zemin, sutunlar.first(), ust, sutunlar.last(), alt);
    for (qsizetype i = 1; i + 1 < sutunlar.size(); ++i)
        Dikey(zemin, sutunlar[i], ust, alt);
    for (int i = 1; i < sayi; ++i)
        Yatay(zemin, ust + adim * i, sutunlar.first(), sutunlar.last());
}

double FormCizimi::CizgiUstu(double y, double adim, double punto)
{
    const QFontMetricsF olcu = Olcu(punto, false);
    return y - (adim - (olcu.ascent() + olcu.descent())) / 2;
}

QRectF FormCizimi::YaziAlani(const SayfaYazisi& yazi)
{
    const QFontMetricsF olcu = Olcu(yazi);
    return QRectF(yazi.x, yazi.y, olcu.horizontalAdvance(yazi.metin), olcu.ascent() + olcu.descent());
}

QRectF FormCizimi::MurekkepAlani(const SayfaYazisi& yazi)
{
    const QFontMetricsF olcu = Olcu(yazi);
    // The metrics give blanks an outline too: the padding of a right-aligned
    // number would cover its whole width.
    qsizetype bas = 0;
    while (bas < yazi.metin.size() && yazi.metin[bas] == u' ')
        ++bas;
    const QString harfler = yazi.metin.mid(bas).trimmed();
    if (harfler.isEmpty())
        return QRectF();
    return olcu.tightBoundingRect(harfler).translated(yazi.x + olcu.horizontalAdvance(yazi.metin.left(bas)),
                                                      yazi.y + olcu.ascent());
}

QList<SayfaYazisi> FormCizimi::YerindeOlmayanlar(const Sayfa& sayfa)
{
    QList<SayfaYazisi> sonuc;
    for (const SayfaYazisi& yazi : sayfa.yazilar) {
        // Blanks leave nothing on paper.
        if (yazi.metin.trimmed().isEmpty())
            continue;
        if (!YerindeMi(YaziAlani(yazi), sayfa.zemin))
            sonuc.append(yazi);
    }
    return sonuc;
}

QList<QPair<SayfaYazisi, SayfaYazisi>> FormCizimi::Cakisanlar(const Sayfa& sayfa)
{
    QList<QPair<SayfaYazisi, SayfaYazisi>> sonuc;
    const QList<SayfaYazisi>& yazilar = sayfa.yazilar;
    for (qsizetype i = 0; i < yazilar.size(); ++i)
        for (qsizetype j = i + 1; j < yazilar.size(); ++j)
            if (MurekkepAlani(yazilar[i]).intersects(MurekkepAlani(yazilar[j])))
                sonuc.append({yazilar[i], yazilar[j]});
    return sonuc;
}
