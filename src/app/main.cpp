// The program: with no command word it opens its window; with one it works
// without a window (sample data, printing the sample's forms to PDF).

#include "ekranlar.h"
#include "hata.h"
#include "komutlar.h"
#include "menu.h"
#include "oturum.h"
#include "parola.h"
#include "veri_klasoru.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QMessageBox>

#include <cstdio>

namespace {

void hataYaz(const QString& mesaj)
{
    std::fprintf(stderr, "%s\n", qPrintable(mesaj));
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
    // Without a display the commands still print: Qt draws offscreen, with a
    // private runtime folder of its own where the session gives none.
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
            const QString yer = QDir::temp().filePath(
                QStringLiteral("tasinir-runtime-%1").arg(qEnvironmentVariable("USER", QStringLiteral("kullanici"))));
            QDir().mkpath(yer);
            QFile::setPermissions(yer, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
            qputenv("XDG_RUNTIME_DIR", yer.toLocal8Bit());
        }
    }
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
                                                  "(varsayılan: veri klasöründe formlar); "
                                                  "yazdir: yazılacak PDF dosyası."),
                                   QStringLiteral("klasör"));
    const QCommandLineOption no(QStringLiteral("no"), QStringLiteral("yazdir: fiş numarası."), QStringLiteral("N"));
    const QCommandLineOption cins(QStringLiteral("cins"), QStringLiteral("yazdir: fiş türü, G (giriş) ya da C (çıkış)."),
                                  QStringLiteral("G|C"));
    const QCommandLineOption yil(QStringLiteral("yil"), QStringLiteral("yazdir: fişin yılı."), QStringLiteral("YYYY"));
    const QCommandLineOption sayfa(QStringLiteral("sayfa"),
                                   QStringLiteral("yazdir: fis (varsayılan), zimmet ya da istek."),
                                   QStringLiteral("tür"));
    parser.addOptions({veri, satir, cikti, no, cins, yil, sayfa});
    parser.addPositionalArgument(QStringLiteral("komut"),
                                 QStringLiteral("ornek-veri KLASÖR: boş bir klasöre örnek veri yazar.\n"
                                                "ornek-formlar: örnek verinin formlarını PDF olarak yazar.\n"
                                                "kod-plani-yukle DOSYA: kurumun hesap kodu listesini "
                                                "(kod<TAB>ad) yükler.\n"
                                                "yazdir fis: kayıtlı bir fişin sayfasını PDF olarak yazar.\n"
                                                "Komut verilmezse program açılır."),
                                 QStringLiteral("[komut]"));
    parser.process(app);
    const QStringList argumanlar = parser.positionalArguments();
    const QString komut = argumanlar.value(0);
    const QString klasor = VeriKlasoru::Sec(parser.value(veri));

    try {
        if (komut == QLatin1String("ornek-veri"))
            return Komutlar::OrnekVeri(argumanlar, parser.value(satir));
        VeriKlasoru::Hazirla(klasor);
        if (komut == QLatin1String("ornek-formlar"))
            return Komutlar::OrnekFormlar(klasor, parser.value(cikti));
        if (komut == QLatin1String("kod-plani-yukle"))
            return Komutlar::KodPlani(klasor, argumanlar);
        if (komut == QLatin1String("yazdir"))
            return Komutlar::Yazdir(klasor, argumanlar,
                                     {parser.value(no), parser.value(cins), parser.value(yil),
                                      parser.value(sayfa), parser.value(cikti)});
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
