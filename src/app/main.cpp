// The program: with no command word it opens its window; with one it works
// without a window (sample data, printing the sample's forms to PDF).

#include "ekranlar.h"
#include "hata.h"
#include "komutlar.h"
#include "menu.h"
#include "oturum.h"
#include "parola.h"
#include "turkce.h"
#include "veri_acilisi.h"
#include "veri_klasoru.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QTimer>

namespace {

// The data files, the login, then the menu for the rest of the run; the
// monthly copy is written once the menu shows.
int pencereli(const QString& klasor)
{
    const AcilanVeri acilan = VeriAc(klasor);
    if (!acilan.veri)
        return 1;
    Parola parola(Oturum::ParolaYazimlari(klasor));
    if (parola.exec() != QDialog::Accepted)
        return 0;
    Menu menu(*acilan.veri);
    EkranlariTanimla(menu);
    QObject::connect(&menu, &Menu::Cikis, qApp, &QApplication::closeAllWindows);
    menu.show();
    if (acilan.kopyaYazilabilir)
        QTimer::singleShot(0, &menu, &Menu::AylikKopyaYaz);
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
    QtTurkcesiniYukle(app);

    QCommandLineParser parser;
    parser.setApplicationDescription(ProgramAdi);
    parser.addHelpOption();
    const QCommandLineOption veri(QStringLiteral("veri"), QStringLiteral("Veri klasörü."), QStringLiteral("klasör"));
    const QCommandLineOption satir(QStringLiteral("satir"),
                                   QStringLiteral("ornek-veri: yazılacak fiş satırı sayısı (varsayılan 3000)."),
                                   QStringLiteral("sayı"));
    const QCommandLineOption gerekirse(QStringLiteral("gerekirse"),
                                       QStringLiteral("ornek-veri: klasörde kayıt varsa bir şey yazmadan çıkar."));
    const QCommandLineOption cikti(QStringLiteral("cikti"),
                                   QStringLiteral("ornek-formlar: PDF'lerin yazılacağı klasör "
                                                  "(varsayılan: veri klasöründe formlar); "
                                                  "yazdir: yazılacak PDF dosyası; "
                                                  "rapor: yazılacak PDF, CSV ya da XLSX dosyası; "
                                                  "yil-sonu: dosyaların yazılacağı klasör."),
                                   QStringLiteral("klasör"));
    const QCommandLineOption no(QStringLiteral("no"), QStringLiteral("yazdir: fiş ya da tutanak numarası."),
                                QStringLiteral("N"));
    const QCommandLineOption cins(QStringLiteral("cins"), QStringLiteral("yazdir: fiş türü, G (giriş) ya da C (çıkış)."),
                                  QStringLiteral("G|C"));
    const QCommandLineOption yil(QStringLiteral("yil"), QStringLiteral("yazdir: fişin ya da tutanağın yılı; yil-sonu: tabloların yılı."),
                                 QStringLiteral("YYYY"));
    const QCommandLineOption sayfa(QStringLiteral("sayfa"),
                                   QStringLiteral("yazdir: fis (varsayılan), zimmet ya da istek."),
                                   QStringLiteral("tür"));
    const QCommandLineOption hangi(QStringLiteral("hangi"),
                                   QStringLiteral("rapor: T tüketim malzemeleri, D dayanıklı taşınırlar."),
                                   QStringLiteral("T|D"));
    const QCommandLineOption baslangic(QStringLiteral("baslangic"),
                                       QStringLiteral("rapor: başlama tarihi (varsayılan: raporun ekranının açıldığı tarih)."),
                                       QStringLiteral("gg.aa.yyyy"));
    const QCommandLineOption bitis(QStringLiteral("bitis"), QStringLiteral("rapor: bitiş tarihi (varsayılan: bugün)."),
                                   QStringLiteral("gg.aa.yyyy"));
    const QCommandLineOption hesap(QStringLiteral("hesap"), QStringLiteral("rapor: yalnız bu hesap kodu."),
                                   QStringLiteral("KOD"));
    parser.addOptions({veri, satir, gerekirse, cikti, no, cins, yil, sayfa, hangi, baslangic, bitis, hesap});
    parser.addPositionalArgument(QStringLiteral("komut"),
                                 QStringLiteral("ornek-veri KLASÖR: boş bir klasöre örnek veri yazar.\n"
                                                "ornek-formlar: örnek verinin formlarını PDF olarak yazar.\n"
                                                "kod-plani-yukle DOSYA: kurumun hesap kodu listesini "
                                                "(kod<TAB>ad) yükler.\n"
                                                "yazdir fis: kayıtlı bir fişin sayfasını PDF olarak yazar.\n"
                                                "yazdir dusum: kayıtlı bir düşüm tutanağını PDF olarak yazar.\n"
                                                "rapor RAPOR: bir raporu PDF, CSV ya da XLSX olarak yazar "
                                                "(yalnız \"rapor\" raporları listeler).\n"
                                                "yil-sonu: yılın denetimini, tablolarını ve özetini yazar.\n"
                                                "Komut verilmezse program açılır."),
                                 QStringLiteral("[komut]"));
    parser.process(app);
    const QStringList argumanlar = parser.positionalArguments();
    const QString komut = argumanlar.value(0);
    const QString klasor = VeriKlasoru::Sec(parser.value(veri));

    if (!komut.isEmpty())
        return Komutlar::Calistir(argumanlar, klasor,
                                  {parser.value(satir), parser.isSet(gerekirse), parser.value(no), parser.value(cins),
                                   parser.value(yil), parser.value(sayfa), parser.value(cikti), parser.value(hangi),
                                   parser.value(baslangic), parser.value(bitis), parser.value(hesap)});
    try {
        return pencereli(klasor);
    } catch (const Hata& h) {
        QMessageBox::critical(nullptr, ProgramAdi, h.Mesaj());
    }
    return 1;
}
