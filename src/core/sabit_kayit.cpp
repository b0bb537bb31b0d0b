#include "sabit_kayit.h"

#include "kayit.h"
#include "veritabani.h"

#include <QStringList>

const QList<SabitAlan>& SabitAlanlari()
{
    static const QList<SabitAlan> alanlar = [] {
        struct Satir
        {
            const char* alan;
            const char* kontrol;
            const char* etiket;
            const char* cerceve;
            bool sayi;
        };
        static const char* const kurum = "Kurum Bilgileri";
        static const char* const sayim = "Sayım Cetveli Komisyonu";
        static const Satir satirlar[] = {
            {"Muhasebeci1", "Muhasebeci1", "", "Muhasebeci Ünvanı ve Adı Soyadı", false},
            {"Muhasebeci2", "Muhasebeci2", "", "Muhasebeci Ünvanı ve Adı Soyadı", false},
            {"AyniyatMemuru1", "AyniyatMemuru1", "", "Ayniyat Memuruı ve Adı Soyadı", false},
            {"AyniyatMemuru2", "AyniyatMemuru2", "", "Ayniyat Memuruı ve Adı Soyadı", false},
            {"itaAmiri", "itaAmiri", "", "İta Amiri Ünvanı ve Adı Soyadı", false},
            {"itaAmiriAd", "itaAmiriAdi", "", "İta Amiri Ünvanı ve Adı Soyadı", false},
            {"AmbarMemur", "AmbarMemur", "", "Ambar Memuru Ünvanı ve Adı Soyadı", false},
            {"AmbarMemurAd", "AmbarMemurAd", "", "Ambar Memuru Ünvanı ve Adı Soyadı", false},
            {"SubeMudur1", "SubeMudur1", "", "Şube Müdürü(Kontrol) Ünvanı ve Adı Soyadı", false},
            {"SubeMudur2", "SubeMudur2", "", "Şube Müdürü(Kontrol) Ünvanı ve Adı Soyadı", false},
            {"HarcamaYetkilisi1", "HarcamaYetkilisi1", "", "Harcama Yetkili Ünvanı ve Adı Soyadı", false},
            {"HarcamaYetkilisi2", "HarcamaYetkilisi2", "", "Harcama Yetkili Ünvanı ve Adı Soyadı", false},
            {"UstYonetici1", "UstYonetici1", "", "Üst Yönetici Ünvanı ve Adı Soyadı", false},
            {"UstYonetici2", "UstYonetici2", "", "Üst Yönetici Ünvanı ve Adı Soyadı", false},
            {"KurumAdi", "KurumAdi", "Kurum Adı", kurum, false},
            {"KurumKod", "KurumKod", "Kurum Kod", kurum, false},
            {"ilAdi", "ilAdi", "İl-İlçe Adı", kurum, false},
            {"ilKod", "ilKod", "İl-İlçe Kod", kurum, false},
            {"MuhasebeBirimiAdi", "MuhasebeBirimiAdi", "Muhasebe Birimi Ad", kurum, false},
            {"MuhasebeBirimiKod", "MuhasebeBirimiKod", "Muhasebe Kod", kurum, false},
            {"BirimAd", "BirimAd", "Birim Ad", kurum, false},
            {"BirimKod", "BirimKod", "Harcama BirimKod", kurum, false},
            {"SayimBaskan", "SayimBaskan", "Başkan Adı-Soyadı", sayim, false},
            {"SayimBaskanUnvan", "SayimBaskanUnvan", "Sayım Başkanı Ünvanı", sayim, false},
            {"SayimUye1", "SayimUye1", "Üye 1 Adı-Soyadı", sayim, false},
            {"SayimUyeUnvan1", "SayimUyeUnvan1", "Üye 1 Ünvanı", sayim, false},
            {"SayimUye2", "SayimUye2", "Üye 2 Adı-Soyadı", sayim, false},
            {"SayimUyeUnvan2", "SayimUyeUnvan2", "Üye 2 Ünvanı", sayim, false},
            {"KDV1", "KDV1", "KDV ", "Oranlar", false},
            {"DamgaOran1", "DamgaOran1", "Damga Oran ", "Oranlar", false},
            {"CalisYil", "CalisYil", "Çalışma Yılı", "Çalışma Dönemi", true},
            {"CalisAy", "CalisAy", "Çalışma Ay", "Çalışma Dönemi", true},
        };
        QList<SabitAlan> liste;
        for (const Satir& s : satirlar)
            liste.append({QString::fromUtf8(s.alan), QString::fromUtf8(s.kontrol), QString::fromUtf8(s.etiket),
                          QString::fromUtf8(s.cerceve), s.sayi});
        return liste;
    }();
    return alanlar;
}

namespace {

// Columns no screen edits; a save empties them so the row keeps its shape.
// DamgaOran2, DamgaOran3 and LigSponsoru are left as they are.
const char* const bosYazilanlar[] = {"FutFedOran", "FedOran", "Sezon", "Sezon1",
                                     "DamSinir1", "DamSinir2", "DamSinir3"};

// A null text would be bound as NULL; the columns hold the empty text instead.
QVariant bosDegil(const QString& metin)
{
    return metin.isNull() ? QStringLiteral("") : metin;
}

QSqlQuery satirOku(Veritabani& vt)
{
    return vt.Sorgu(QStringLiteral("Select * from Sabit where Anahtar = 1 "));
}

}

std::optional<SabitSatiri> SabitKayit::Getir(Veritabani& vt)
{
    QSqlQuery sorgu = satirOku(vt);
    if (!sorgu.next())
        return std::nullopt;
    SabitSatiri satir;
    for (const SabitAlan& a : SabitAlanlari())
        satir.insert(a.alan, sorgu.value(a.alan).toString());
    return satir;
}

void SabitKayit::Kaydet(Veritabani& vt, const SabitSatiri& degerler)
{
    QStringList atamalar;
    QVariantList baglar;
    for (const SabitAlan& a : SabitAlanlari()) {
        atamalar << a.alan + QStringLiteral(" = ?");
        const QString metin = degerler.value(a.alan);
        baglar << (a.sayi ? QVariant(Val(metin)) : bosDegil(metin));
    }
    for (const char* alan : bosYazilanlar) {
        atamalar << QString::fromLatin1(alan) + QStringLiteral(" = ?");
        baglar << bosDegil({});
    }

    Islem islem(vt);
    if (!satirOku(vt).next())
        vt.Calistir(QStringLiteral("insert into Sabit (Anahtar) values (1)"));
    vt.Calistir(QStringLiteral("update Sabit set %1 where Anahtar = 1").arg(atamalar.join(QStringLiteral(", "))),
                baglar);
    islem.Onayla();
}

void SabitKayit::Sil(Veritabani& vt)
{
    vt.Calistir(QStringLiteral("delete from Sabit where Anahtar = 1"));
}

bool SabitKayit::Var(Veritabani& vt)
{
    return satirOku(vt).next();
}
