#include "saat.h"

namespace {
QDate sabitGun;
}

QDate Saat::Bugun()
{
    return sabitGun.isValid() ? sabitGun : QDate::currentDate();
}

void Saat::Ayarla(const QDate& gun)
{
    sabitGun = gun;
}
