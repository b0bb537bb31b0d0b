#include "ekranlar.h"

#include "dayanak2.h"
#include "dayanik_liste_ekrani.h"
#include "def_tuketim2.h"
#include "depo_takip_ekrani.h"
#include "devir_teslim_ekrani.h"
#include "dusum.h"
#include "fis_k.h"
#include "hesap_k.h"
#include "malzeme_l.h"
#include "menu.h"
#include "sabit.h"
#include "sayim_tutanak_ekrani.h"
#include "sayim_cetveli_ekrani.h"
#include "sinif_tani.h"
#include "unite_tani.h"
#include "yil_devri_ekrani.h"

#include <QPointer>

namespace {

// A form exists once: opening it again brings the open one to the front, as
// the menu's forms always did. `kur` runs when the form is made, `kipYaz`
// each time the menu opens it, with the entry's mode values: before the form
// is shown, or after it where the entry says "HangiSonra".
template <typename Form>
EkranAcici tekOrnek(std::function<void(Form&)> kur = {},
                    std::function<void(Form&, const QVariantMap&)> kipYaz = {})
{
    auto ornek = std::make_shared<QPointer<Form>>();
    return [ornek, kur, kipYaz](const CalismaBaglami& baglam, const QVariantMap& kip) {
        if (!*ornek) {
            *ornek = new Form(baglam);
            if (kur)
                kur(**ornek);
        }
        const bool sonra = kip.value(QStringLiteral("HangiSonra")).toBool();
        if (kipYaz && !sonra)
            kipYaz(**ornek, kip);
        (*ornek)->show();
        (*ornek)->raise();
        (*ornek)->activateWindow();
        if (kipYaz && sonra)
            kipYaz(**ornek, kip);
    };
}

}

void EkranlariTanimla(Menu& menu)
{
    // The class look-ups of the voucher and write-off screens are read again
    // when the class or the unit screen closes, so that what was just
    // defined can be chosen.
    auto fis = std::make_shared<QPointer<FIS_K>>();
    auto dusum = std::make_shared<QPointer<Dusum>>();
    auto listeyiYenile = [fis, dusum](QWidget& ekran) {
        QObject::connect(&ekran, &QObject::destroyed, [fis, dusum] {
            if (*fis)
                (*fis)->SinifListesiYenile();
            if (*dusum)
                (*dusum)->Urunler();
        });
    };

    menu.EkranTanimla(QStringLiteral("FIS_K"),
                      tekOrnek<FIS_K>([fis](FIS_K& f) { *fis = &f; },
                                      [](FIS_K& f, const QVariantMap& kip) { f.KipAyarla(kip); }));
    menu.EkranTanimla(QStringLiteral("DefTuketim2"),
                      tekOrnek<DefTuketim2>({}, [](DefTuketim2& d, const QVariantMap& kip) {
                          d.HangiYaz(kip.value(QStringLiteral("Hangi")).toString());
                      }));
    menu.EkranTanimla(QStringLiteral("DayanikListe"),
                      tekOrnek<DayanikListe>({}, [](DayanikListe& d, const QVariantMap& kip) {
                          d.HangiYaz(kip.value(QStringLiteral("Hangi")).toString());
                      }));
    menu.EkranTanimla(QStringLiteral("Dayanak2"), tekOrnek<Dayanak2>());
    // Opened without Hangi; each opening lists afresh, as Form_Activate did.
    menu.EkranTanimla(QStringLiteral("HesapCetveli"),
                      tekOrnek<HesapCetveli>({}, [](HesapCetveli& h, const QVariantMap&) { h.Toplu(); }));
    menu.EkranTanimla(QStringLiteral("KesinHesap"),
                      tekOrnek<KesinHesap>({}, [](KesinHesap& k, const QVariantMap&) { k.Toplu(); }));
    menu.EkranTanimla(QStringLiteral("SayimTutanak"),
                      tekOrnek<SayimTutanak>({}, [](SayimTutanak& s, const QVariantMap& kip) {
                          s.HangiYaz(kip.value(QStringLiteral("Hangi")).toString());
                      }));
    // Hangi "D": the records from their beginning, as the panel opens.
    menu.EkranTanimla(QStringLiteral("SayimCetveli"),
                      tekOrnek<SayimCetveli>({}, [](SayimCetveli& s, const QVariantMap&) { s.Toplu(); }));
    menu.EkranTanimla(QStringLiteral("Dusum"), tekOrnek<Dusum>([dusum](Dusum& d) { *dusum = &d; }));
    menu.EkranTanimla(QStringLiteral("HESAP_K"), tekOrnek<HESAP_K>());
    menu.EkranTanimla(QStringLiteral("Malzeme_L"), tekOrnek<Malzeme_L>());
    menu.EkranTanimla(QStringLiteral("SinifTani"), tekOrnek<SinifTani>(listeyiYenile));
    menu.EkranTanimla(QStringLiteral("Unite_TANI"), tekOrnek<Unite_TANI>(listeyiYenile));
    menu.EkranTanimla(QStringLiteral("Sabit"), tekOrnek<Sabit>([&menu](Sabit& sabit) {
                          QObject::connect(&sabit, &Sabit::CalismaDegisti, &menu, &Menu::CalismaAyarla);
                      }));
    // Opened without Hangi; each opening lists afresh from 01.01.1900.
    menu.EkranTanimla(QStringLiteral("DevirTeslim"),
                      tekOrnek<DevirTeslim>({}, [](DevirTeslim& d, const QVariantMap&) { d.Toplu(); }));
    menu.EkranTanimla(QStringLiteral("DepoTakip"),
                      tekOrnek<DepoTakip>({}, [](DepoTakip& d, const QVariantMap&) { d.Toplu(); }));
}
