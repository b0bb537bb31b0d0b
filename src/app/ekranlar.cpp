#include "ekranlar.h"

#include "menu.h"
#include "sabit.h"

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

void EkranlariTanimla(Menu& menu)
{
    menu.EkranTanimla(QStringLiteral("Sabit"), tekOrnek<Sabit>([&menu](Sabit& sabit, const QVariantMap&) {
        QObject::connect(&sabit, &Sabit::CalismaDegisti, &menu, &Menu::CalismaAyarla);
    }));
}
