#include "dosya.h"

QString DosyaAdi(Dosya dosya)
{
    switch (dosya) {
    case Dosya::Genel: return QStringLiteral("GENEL.MDB");
    case Dosya::Ayniyat: return QStringLiteral("AYNIYAT.MDB");
    case Dosya::HesapKod: return QStringLiteral("HESAPKOD.MDB");
    case Dosya::Okul: return QStringLiteral("OKUL.MDB");
    case Dosya::Sirket: return QStringLiteral("Sirket.dat");
    }
    return {};
}
