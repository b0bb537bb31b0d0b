#pragma once

#include "sayfa.h"

#include <QColor>
#include <QFontMetricsF>
#include <QList>
#include <QString>
#include <variant>

class Cikti;

// Moves the next item of a Print to a character column, counted from 1.
struct Tab
{
    constexpr explicit Tab(int n) : sutun(n) {}
    int sutun;
};

using PrintOgesi = std::variant<QString, Tab>;

// AyniSatir is the trailing ";" of a Basic Print: the next Print goes on
// where this one stopped.
enum SatirSonu { YeniSatir, AyniSatir };

// The printer of the forms and reports, with the members and semantics of the
// Basic Printer object. Pages are recorded as Sayfa and handed to a Cikti by
// EndDoc. Positions are twips from the origin of the printable area.
//
//     p.CurrentX = 5 * 56.5;
//     p.Print({Tab(2), kod, Tab(23), ad});
//     p.Print({u"Toplam:"_s}, AyniSatir);
//
// Starting a page when the output is missing or not ready throws
// YaziciHatasi, as does an output that cannot write the document.
class Yazici
{
public:
    Yazici() = default;
    explicit Yazici(Cikti* cikti);
    // The output of the documents ended from now on; not owned.
    void CiktiSec(Cikti* cikti);

    double CurrentX = 0;
    double CurrentY = 0;
    double FontSize = 10;
    bool FontBold = false;
    QColor ForeColor = Qt::black;
    // 1 portrait, 2 landscape; taken by the next page that starts.
    int Orientation = 1;

    // Texts follow each other from CurrentX; a Tab past the current position
    // goes to its column on the next line. Unless AyniSatir, the line ends:
    // CurrentX to 0 and CurrentY down by one line. An empty Print is an empty
    // line. A page starts with the first text drawn.
    void Print(const QList<PrintOgesi>& ogeler = {}, SatirSonu son = YeniSatir);
    // Puts the form under the texts of the current page, starting it if needed.
    void ZeminCiz(const Zemin& zemin);
    // Copies a page drawn beforehand (a form shown on the screen) onto the
    // current page, as the picture of a picture box went to the printer.
    void PaintPicture(const Sayfa& sayfa);
    // Ends the current page, an empty one if nothing was drawn on it.
    void NewPage();
    // Hands the pages to the output and starts a new document. A page left
    // empty by a last NewPage is not printed.
    void EndDoc();
    // Drops the document.
    void KillDoc();

    double TextWidth(const QString& metin) const;
    // The height of one line of the current font.
    double TextHeight() const;
    // The width of a Tab column: the average character width of the font.
    double SutunGenisligi() const;

private:
    const QFontMetricsF& Olcu() const;
    Cikti& Hedef() const;
    Sayfa& AcikSayfa();
    // Closes the page being drawn and goes back to the origin.
    void SayfayiKapat();

    Cikti* m_cikti = nullptr;
    Belge m_sayfalar;
    bool m_sayfaAcik = false;
};
