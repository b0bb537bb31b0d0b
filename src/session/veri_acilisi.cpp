#include "veri_acilisi.h"

#include "kart_ekrani.h"
#include "turkce.h"
#include "veri_klasoru.h"

#include <QDir>
#include <QGuiApplication>
#include <QScopeGuard>

namespace {

QString adlar(const QList<Dosya>& dosyalar)
{
    QStringList liste;
    for (Dosya d : dosyalar)
        liste << DosyaAdi(d);
    return liste.join(QStringLiteral(", "));
}

}

AcilanVeri VeriAc(const QString& klasor)
{
    const QString& baslik = ProgramAdi;
    AcilanVeri sonuc;
    // A file of an earlier version is converted while it opens: seconds on a
    // large one.
    const auto ac = [&] {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        const auto imlec = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
        return std::make_unique<Veri>(klasor);
    };
    try {
        try {
            sonuc.veri = ac();
            sonuc.kopyaYazilabilir = !sonuc.veri->Olusturulanlar().contains(Dosya::Ayniyat);
        } catch (const EksikDosyaHatasi& eksik) {
            const QString soru =
                QStringLiteral("Veri klasöründe %1 bulunamadı ya da boş:\n%2\n\n"
                               "Klasörde başka veri dosyaları var; eksik dosyayı yedekten geri yüklemek "
                               "için Hayır deyiniz.\n\nYerine boş bir dosya oluşturulsun mu?")
                    .arg(adlar(eksik.Eksikler()), QDir::toNativeSeparators(klasor));
            if (!EvetHayir(nullptr, soru, baslik, QMessageBox::Warning))
                return {};
            VeriKlasoru::Olustur(klasor, eksik.Eksikler());
            sonuc.veri = ac();
            sonuc.kopyaYazilabilir = !eksik.Eksikler().contains(Dosya::Ayniyat);
        }
    } catch (const Hata& h) {
        QMessageBox::critical(nullptr, baslik, h.Mesaj());
        return {};
    }
    if (!sonuc.veri->Tamamlananlar().isEmpty())
        QMessageBox::information(nullptr, baslik, sonuc.veri->Tamamlananlar().join(u'\n'));
    return sonuc;
}
