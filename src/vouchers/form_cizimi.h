#pragma once

#include "sayfa.h"

#include <QList>
#include <QStringList>

// The statutory forms of the print screens, drawn as vectors: the
// pre-printed part (boxes, rules, labels) and the texts placed at twip
// positions, as the old forms were printed on a picture box at CurrentX and
// CurrentY. Pages are filled directly; no Yazici is involved until printing.
namespace FormCizimi {

// The lines of a voucher on every form: at most 25, 240 twips apart.
inline constexpr int SatirSayisi = 25;
inline constexpr double SatirAdimi = 240;

// Between cells. Thin, because the printed values come close to the rules.
inline constexpr double InceCizgi = 7;
// Around a whole form.
inline constexpr double CerceveCizgisi = 15;

// Puts a text with the top-left corner of its line at (x, y). An empty text
// leaves nothing, as Print does.
void Yaz(Sayfa& sayfa, double x, double y, const QString& metin, double punto, bool kalin = false);
// As Yaz, for a value whose box ends at the rule at `sag`: one that would
// reach the rule is set smaller, on the baseline it would have had, down to
// EnKucukPunto; at that size it is cut and ends with "…".
void Sigdir(Sayfa& sayfa, double x, double y, const QString& metin, double punto, double sag, bool kalin = false);
// Where a text put at x on the line of `onceki` goes for its letters to
// start a blank's width after that text's: x itself when they do already.
double Ardindan(const SayfaYazisi& onceki, double x, const QString& metin, double punto, bool kalin = false);
// Takes away the texts put at (x, y) in the size `punto`, set smaller or not:
// the forms blanked a place before printing over it again.
void Sil(Sayfa& sayfa, double x, double y, double punto, bool kalin = false);

void Kutu(Zemin& zemin, double sol, double ust, double sag, double alt, double kalinlik = InceCizgi);
void Yatay(Zemin& zemin, double y, double sol, double sag, double kalinlik = InceCizgi);
void Dikey(Zemin& zemin, double x, double ust, double alt, double kalinlik = InceCizgi);
void Etiket(Zemin& zemin, const QRectF& alan, const QString& metin, double punto = 8, bool kalin = false,
            Qt::Alignment hiza = Qt::AlignCenter);

// The room of a label in a cell: `pay` in from its left and right edges.
QRectF Alan(double sol, double ust, double sag, double alt, double pay = 40);
// A label at the left of its room, halfway down.
void SolaEtiket(Zemin& zemin, const QRectF& alan, const QString& metin, double punto = 8, bool kalin = false);

// A row of heading cells between the x of `sutunlar` (one edge more than
// there are headings), each a box with its label centred, bold.
void Basliklar(Zemin& zemin, const QList<double>& sutunlar, double ust, double alt, const QStringList& basliklar,
               double punto = 8);

// The body of a table: a box over the columns' width, the column rules and a
// rule between each two of `sayi` rows of height `adim` from `ust`.
void Govde(Zemin& zemin, const QList<double>& sutunlar, double ust, double adim, int sayi);

// Where the rule above a line of `punto` text at `y` goes when lines follow
// each other `adim` apart: halfway between two lines.
double CizgiUstu(double y, double adim, double punto);

// A text's line as the font measures it: its advance wide, ascent plus
// descent high.
QRectF YaziAlani(const SayfaYazisi& yazi);
// The ink of a text: what its letters cover.
QRectF MurekkepAlani(const SayfaYazisi& yazi);

// The texts of the page that do not lie inside a box of the form, or that a
// rule or a box edge runs through.
QList<SayfaYazisi> YerindeOlmayanlar(const Sayfa& sayfa);
// The pairs of texts whose letters run into each other.
QList<QPair<SayfaYazisi, SayfaYazisi>> Cakisanlar(const Sayfa& sayfa);

}
