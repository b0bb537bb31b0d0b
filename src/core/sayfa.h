#pragma once

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QLineF>
#include <QList>
#include <QPageLayout>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

// A printed page as data. Every coordinate is in twips (1/1440 inch) from the
// origin of the printable area, so tests can ask where a text stands and the
// same page can go to the screen, a PDF file or a printer.

inline constexpr double TwipInc = 1440;

// The unprintable edge of a usual printer. Devices without one (PDF, screen)
// leave it blank so that a page looks as it does on paper.
inline constexpr double KenarTwip = 360;

// A text placed by Print; y is the top of its line.
struct SayfaYazisi
{
    double x = 0;
    double y = 0;
    QString metin;
    double punto = 10;
    bool kalin = false;
    QColor renk = Qt::black;
};

// The pre-printed part of a statutory form, drawn by code under the texts.
struct Cizgi
{
    QLineF konum;
    double kalinlik = 15;
};

struct Kutu
{
    QRectF alan;
    double kalinlik = 15;
};

// A fixed label; it wraps inside its box.
struct Etiket
{
    QRectF alan;
    QString metin;
    double punto = 8;
    bool kalin = false;
    Qt::Alignment hiza = Qt::AlignLeft | Qt::AlignTop;
};

struct Zemin
{
    // A scanned form put in place of the drawn one, stretched over the
    // printable area.
    QImage resim;
    QList<Cizgi> cizgiler;
    QList<Kutu> kutular;
    QList<Etiket> etiketler;
};

struct Sayfa
{
    QPageLayout::Orientation yon = QPageLayout::Portrait;
    Zemin zemin;
    QList<SayfaYazisi> yazilar;

    // A4, turned with the orientation.
    QSizeF KagitBoyu() const;

    // The text whose top-left corner stands at (x, y), within half a twip;
    // null when there is none.
    const SayfaYazisi* YaziNerede(double x, double y) const;
    QString MetinNerede(double x, double y) const;
};

using Belge = QList<Sayfa>;

// The printer font at a size in points. Its pixel size is in twips, which
// keeps the metrics free of any device's resolution.
QFont YaziFontu(double punto, bool kalin);
// Its metrics, made once for each size: pages measure every text they place.
const QFontMetricsF& YaziOlcusu(double punto, bool kalin);

// A value too wide for its place is set smaller down to this size, and only
// then cut: smaller letters no longer read on paper.
inline constexpr double EnKucukPunto = 6;

// A text and the size it is set in.
struct SigdirilmisYazi
{
    QString metin;
    double punto = 10;
};

// The text as it fits in `yer` twips: as it is when it fits, else smaller
// down to EnKucukPunto, and at that size cut to end with "…".
SigdirilmisYazi Sigdirilmis(const QString& metin, double punto, double yer, bool kalin);

// Draws the page on a painter whose coordinates are twips from the origin of
// the printable area.
void SayfaCiz(QPainter& ressam, const Sayfa& sayfa);
