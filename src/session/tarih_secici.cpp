#include "tarih_secici.h"

namespace {
const QString tarihBicimi = QStringLiteral("dd.MM.yyyy");
}

TarihSecici::TarihSecici(QWidget* ebeveyn) : QDateEdit(ebeveyn)
{
    setDisplayFormat(tarihBicimi);
    // The minimum stands for the empty value.
    setMinimumDate(QDate(1900, 1, 1));
    setSpecialValueText(QStringLiteral(" "));
    setDate(minimumDate());
}

bool TarihSecici::Bos() const
{
    return date() == minimumDate();
}

QString TarihSecici::Metin() const
{
    return Bos() ? QString() : date().toString(tarihBicimi);
}

void TarihSecici::MetinYaz(const QString& metin)
{
    GunYaz(QDate::fromString(metin.trimmed(), tarihBicimi));
}

void TarihSecici::GunYaz(const QDate& gun)
{
    const QSignalBlocker sessiz(this);
    setDate(gun.isValid() ? gun : minimumDate());
}
