#include "devir_teslim_kagidi.h"

#include "devir_teslim.h"
#include "rapor_belgesi.h"

namespace DevirTeslimTutanagi {

RaporKagidi Kagit(int yon)
{
    RaporKagidi k;
    k.ilkSayac = 4;
    k.sinir = yon == 1 ? 70 : 52;
    k.devam = 2;
    k.ilkBas = {{{{0, QStringLiteral("     ")},
                  {6, QStringLiteral("              ")},
                  {25, QStringLiteral("                        ")},
                  {63, QStringLiteral("Ölçü ")},
                  {76, QStringLiteral("Sayım  ")},
                  {93, QStringLiteral("Bulunması")},
                  {105, QStringLiteral("Fazla ")},
                  {117, QStringLiteral("Noksan    ")}}, true},
                {{{0, QStringLiteral("Sıra")},
                  {6, QStringLiteral("Taşınır Kod")},
                  {25, QStringLiteral("Taşınır Adı    ")},
                  {63, QStringLiteral("Birimi")},
                  {76, QStringLiteral("Miktarı ")},
                  {93, QStringLiteral("Gereken ")},
                  {105, QStringLiteral("Miktar ")},
                  {117, QStringLiteral("Miktar          ")}}, true}};
    k.sayfaNoBaslikta = true;
    k.satir = [](const RaporSatiri& satir, int&) -> std::optional<KagitSatiri> {
        const QStringList& h = satir.hucreler;
        return KagitSatiri{{0, h.value(Sira)},
                           {6, h.value(HesapKod).left(20)},
                           {25, h.value(Ozellik).left(27)},
                           {63, h.value(Birimi).left(7)},
                           {76, RaporBelgeleri::Sagda(h.value(SayimMiktari), 10)},
                           {90, RaporBelgeleri::Sagda(h.value(BulunmasiGereken), 10)},
                           {103, RaporBelgeleri::Sagda(h.value(Fazla), 10)},
                           {117, RaporBelgeleri::Sagda(h.value(Noksan), 10)}};
    };
    k.kapanis = {{}};
    return k;
}

}
