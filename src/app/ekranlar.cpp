#include "ekranlar.h"

#include "hesap_k.h"
#include "menu.h"
#include "sabit.h"
#include "sinif_tani.h"
#include "unite_tani.h"

#include <QPointer>

namespace {

// A form exists once: opening it again brings the open one to the front, as
// the menu's forms always did.
template <typename Form, typename Kur>
EkranAcici tekOrnek(Kur kur)
{
    auto ornek = std::make_shared<QPointer<Form>>();
    return [ornek, kur](const CalismaBaglami& baglam, const QVariantMap& kip) {
        if (!*ornek) {
            *ornek = new Form(baglam);
            kur(**ornek, kip);
        }
        (*ornek)->show();
        (*ornek)->raise();
        (*ornek)->activateWindow();
    };
}

}

// A form the menu only shows, with no mode values to take.
template <typename Form>
EkranAcici yalnizAc()
{
    return tekOrnek<Form>([](Form&, const QVariantMap&) {});
}

void EkranlariTanimla(Menu& menu)
{
    menu.EkranTanimla(QStringLiteral("HESAP_K"), yalnizAc<HESAP_K>());
    menu.EkranTanimla(QStringLiteral("SinifTani"), yalnizAc<SinifTani>());
    menu.EkranTanimla(QStringLiteral("Unite_TANI"), yalnizAc<Unite_TANI>());
    menu.EkranTanimla(QStringLiteral("Sabit"), tekOrnek<Sabit>([&menu](Sabit& sabit, const QVariantMap&) {
        QObject::connect(&sabit, &Sabit::CalismaDegisti, &menu, &Menu::CalismaAyarla);
    }));
}
