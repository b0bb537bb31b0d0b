// The program: with no command word it opens its window; with one it works
// without a window (sample data, printing the sample's forms to PDF).

#include "cikti.h"
#include "ekranlar.h"
#include "kod_plani_yukle.h"
#include "menu.h"
#include "ornek_veri.h"
#include "oturum.h"
#include "parola.h"
#include "tek_deger.h"
#include "unite_tanim.h"
#include "veri_klasoru.h"
#include "veritabani.h"
#include "yazici.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QMessageBox>

#include <cstdio>

namespace {

void hataYaz(const QString& mesaj)
{
    std::fprintf(stderr, "%s\n", qPrintable(mesaj));
}

// The unit list as the unit screen's print button gives it.
void uniteListesiYazdir(const QString& klasor, Yazici& p)
{
    Veritabani vt(klasor, Dosya::Genel);
    const QString kurum = AlanGetir(vt, QStringLiteral("Sabit"), QStringLiteral("KurumAdi"),
                                    QStringLiteral(" where Anahtar = 1 "));
    UniteTanim::UniteListesiYazdir(klasor, kurum, p);
}

int ornekVeri(const QStringList& argumanlar, const QString& satirMetni)
{
    if (argumanlar.size() < 2) {
        hataYaz(QStringLiteral("Kullanım: tasinir ornek-veri KLASÖR [--satir N]"));
        return 2;
    }
    bool tamam = true;
    const int satir = satirMetni.isEmpty() ? 3000 : satirMetni.toInt(&tamam);
    if (!tamam || satir < 1) {
        hataYaz(QStringLiteral("--satir bir pozitif tam sayı olmalı: %1").arg(satirMetni));
        return 2;
    }
    const QString klasor = QDir(argumanlar.at(1)).absolutePath();
    OrnekVeriYaz(klasor, satir);
    std::printf("Örnek veri yazıldı: %s\n", qPrintable(klasor));
    return 0;
}

int ornekFormlar(const QString& klasor, const QString& ciktiSecenegi)
{
    const QString cikti = ciktiSecenegi.isEmpty() ? QDir(klasor).filePath(QStringLiteral("formlar"))
                                                  : QDir(ciktiSecenegi).absolutePath();
    if (!QDir().mkpath(cikti)) {
        hataYaz(QStringLiteral("Çıktı klasörü oluşturulamadı: %1").arg(cikti));
        return 1;
    }
    const QString dosya = QDir(cikti).filePath(QStringLiteral("unite_listesi.pdf"));
    PdfCikti pdf(dosya);
    Yazici p(&pdf);
    uniteListesiYazdir(klasor, p);
    std::printf("Formlar PDF olarak yazıldı: %s\n  %s\n", qPrintable(cikti), qPrintable(dosya));
    return 0;
}

int kodPlani(const QString& klasor, const QStringList& argumanlar)
{
    if (argumanlar.size() < 2) {
        hataYaz(QStringLiteral("Kullanım: tasinir kod-plani-yukle --veri KLASÖR DOSYA"));
        return 2;
    }
    const KodPlaniSonucu sonuc = KodPlaniYukle(klasor, argumanlar.at(1));
    std::printf("Hesap planı yüklendi: %d yeni, %d adı değişen, %d aynı kod.\n", sonuc.eklenen,
                sonuc.adiDegisen, sonuc.ayni);
    return 0;
}

// The login, then the menu for the rest of the run.
int pencereli(const QString& klasor)
{
    Parola parola(Oturum::ParolaYazimlari(klasor));
    if (parola.exec() != QDialog::Accepted)
        return 0;
    Menu menu(klasor);
    EkranlariTanimla(menu);
    QObject::connect(&menu, &Menu::Cikis, qApp, &QApplication::closeAllWindows);
    menu.show();
    Oturum::AylikKopya(klasor);
    return QApplication::exec();
}

}

int main(int argc, char* argv[])
{
    // Without a display the commands still print: Qt draws offscreen.
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tasinir"));
    QApplication::setApplicationDisplayName(QStringLiteral("Taşınır Mal Yönetimi"));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Taşınır Mal Yönetimi"));
    parser.addHelpOption();
    const QCommandLineOption veri(QStringLiteral("veri"), QStringLiteral("Veri klasörü."), QStringLiteral("klasör"));
    const QCommandLineOption satir(QStringLiteral("satir"),
                                   QStringLiteral("ornek-veri: yazılacak fiş satırı sayısı (varsayılan 3000)."),
                                   QStringLiteral("sayı"));
    const QCommandLineOption cikti(QStringLiteral("cikti"),
                                   QStringLiteral("ornek-formlar: PDF'lerin yazılacağı klasör "
                                                  "(varsayılan: veri klasöründe formlar)."),
                                   QStringLiteral("klasör"));
    parser.addOptions({veri, satir, cikti});
    parser.addPositionalArgument(QStringLiteral("komut"),
                                 QStringLiteral("ornek-veri KLASÖR: boş bir klasöre örnek veri yazar.\n"
                                                "ornek-formlar: örnek verinin formlarını PDF olarak yazar.\n"
                                                "kod-plani-yukle DOSYA: kurumun hesap kodu listesini "
                                                "(kod<TAB>ad) yükler.\n"
                                                "Komut verilmezse program açılır."),
                                 QStringLiteral("[komut]"));
    parser.process(app);
    const QStringList argumanlar = parser.positionalArguments();
    const QString komut = argumanlar.value(0);
    const QString klasor = VeriKlasoru::Sec(parser.value(veri));

    try {
        if (komut == QLatin1String("ornek-veri"))
            return ornekVeri(argumanlar, parser.value(satir));
        VeriKlasoru::Hazirla(klasor);
        if (komut == QLatin1String("ornek-formlar"))
            return ornekFormlar(klasor, parser.value(cikti));
        if (komut == QLatin1String("kod-plani-yukle"))
            return kodPlani(klasor, argumanlar);
        if (!komut.isEmpty()) {
            hataYaz(QStringLiteral("Bilinmeyen komut: %1 (tasinir --help)").arg(komut));
            return 2;
        }
        return pencereli(klasor);
    } catch (const Hata& h) {
        if (komut.isEmpty())
            QMessageBox::critical(nullptr, QStringLiteral("Taşınır"), h.Mesaj());
        hataYaz(h.Mesaj());
    }
    return 1;
}
