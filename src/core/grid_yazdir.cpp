#include "grid_yazdir.h"

#include "cikti.h"
#include "izgara.h"
#include "yazici.h"

namespace {

void Konumla(Yazici& p, double x, double y, const QString& metin)
{
    p.CurrentX = x * MmTwip;
    p.CurrentY = y * MmTwip;
    p.Print({metin});
}

struct GridAyari
{
    QString baslik;
    double baslikPuntosu;
    double satirPuntosu;
    int testSutunu;
};

void GridBas(Yazici& p, const Izgara& izgara, const GridAyari& ayar)
{
    constexpr double solKenar = 5;
    constexpr double satirAraligi = 5;
    constexpr int sayfaSatiri = 53;
    constexpr int gizliGenislik = 101;

    double ust = 15;
    int satir = 0;
    p.FontSize = ayar.baslikPuntosu;
    Konumla(p, 10, 5, ayar.baslik);
    for (int r = 0; r < izgara.Rows(); ++r) {
        p.FontSize = ayar.satirPuntosu;
        p.FontBold = satir == 0;
        // The heading takes the first line of every page.
        const int basilan = satir == 0 ? 0 : r;
        double x = 0;
        for (int c = 0; c < izgara.Cols(); ++c) {
            if (izgara.ColWidth(c) < gizliGenislik)
                continue;
            Konumla(p, x + solKenar, satir * satirAraligi + ust, izgara.TextMatrix(basilan, c));
            x += izgara.ColWidth(c) / MmTwip;
        }
        if (izgara.TextMatrix(r, ayar.testSutunu).isEmpty())
            break;
        if (++satir == sayfaSatiri) {
            ust = 5;
            satir = 0;
            // This row stood last on the page: the next one gets the heading.
            --r;
            p.NewPage();
        }
    }
}

}

bool KonumYaz(Yazici& p, double x, double y, const QString& metin)
{
    try {
        Konumla(p, x, y, metin);
        return true;
    } catch (const YaziciHatasi&) {
        return false;
    }
}

void GridYazdir(Yazici& p, const QString& baslik, const Izgara& izgara)
{
    GridBas(p, izgara, {baslik, 10, 9, 0});
}

void GridYazdirGenis(Yazici& p, const Izgara& izgara)
{
    GridBas(p, izgara, {QStringLiteral("  "), 8.5, 8.5, 1});
}
