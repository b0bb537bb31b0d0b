// The program: with no command word it opens its window; with one it works
// without a window (sample data, printing the sample's forms to PDF).

#include "cikti.h"
#include "ekranlar.h"
#include "fis_sayfasi.h"
#include "fis_toplam.h"
#include "istek_sayfasi.h"
#include "kod_plani_yukle.h"
#include "menu.h"
#include "ornek_veri.h"
#include "oturum.h"
#include "parola.h"
#include "sabit_kayit.h"
#include "tek_deger.h"
#include "unite_tanim.h"
#include "veri_klasoru.h"
#include "veritabani.h"
#include "yazici.h"
#include "zimmet_sayfasi.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QMessageBox>

#include <cstdio>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

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

// One page of a saved voucher: the voucher, its custody slip or its request
// slip, as the voucher screen's print screens draw it.
Sayfa fisSayfasi(const QString& klasor, const QString& no, const QString& cins, const QString& yil,
                 const QString& tur)
{
    QString harfHatasi;
    const FisYazimi yazim = FisToplam::KayittanYazim(klasor, no, cins, yil, &harfHatasi);
    if (!harfHatasi.isEmpty())
        hataYaz(harfHatasi);
    const SabitSatiri sabit = SabitKayit::Getir(klasor).value_or(SabitSatiri());
    if (tur == QLatin1String("zimmet"))
        return ZimmetSayfasi(yazim, sabit);
    if (tur == QLatin1String("istek"))
        return IstekSayfasi(yazim, sabit);
    return FisSayfasi(yazim, sabit);
}

void pdfYaz(const Sayfa& sayfa, const QString& dosya)
{
    PdfCikti pdf(dosya);
    Yazici p(&pdf);
    p.PaintPicture(sayfa);
    p.EndDoc();
}

int yazdir(const QString& klasor, const QStringList& argumanlar, const QCommandLineParser& parser)
{
    const QString no = parser.value(QStringLiteral("no"));
    const QString cins = parser.value(QStringLiteral("cins")).toUpper();
    const QString yil = parser.value(QStringLiteral("yil"));
    const QString tur = parser.value(QStringLiteral("sayfa")).isEmpty() ? QStringLiteral("fis")
                                                                         : parser.value(QStringLiteral("sayfa"));
    const QString dosya = parser.value(QStringLiteral("cikti"));
    if (argumanlar.value(1) != QLatin1String("fis") || no.isEmpty() || yil.isEmpty() || dosya.isEmpty()
        || (cins != QLatin1String("G") && cins != QLatin1String("C"))
        || !QStringList{QStringLiteral("fis"), QStringLiteral("zimmet"), QStringLiteral("istek")}.contains(tur)) {
        hataYaz(QStringLiteral("Kullanım: tasinir yazdir fis --veri KLASÖR --no N --cins G|C --yil YYYY "
                               "[--sayfa fis|zimmet|istek] --cikti DOSYA.pdf"));
        return 2;
    }
    pdfYaz(fisSayfasi(klasor, no, cins, yil, tur), QDir(dosya).absolutePath());
    std::printf("Yazıldı: %s\n", qPrintable(QDir(dosya).absolutePath()));
    return 0;
}

// The sample's forms: the unit list, and the pages of an entry voucher of
// this year that hands durable goods out, and of an issue voucher.
int ornekFormlar(const QString& klasor, const QString& ciktiSecenegi)
{
    const QString cikti = ciktiSecenegi.isEmpty() ? QDir(klasor).filePath(QStringLiteral("formlar"))
                                                  : QDir(ciktiSecenegi).absolutePath();
    if (!QDir().mkpath(cikti)) {
        hataYaz(QStringLiteral("Çıktı klasörü oluşturulamadı: %1").arg(cikti));
        return 1;
    }
    QStringList yazilanlar;
    const QString liste = QDir(cikti).filePath(QStringLiteral("unite_listesi.pdf"));
    {
        PdfCikti pdf(liste);
        Yazici p(&pdf);
        uniteListesiYazdir(klasor, p);
    }
    yazilanlar << liste;

    Veritabani ayniyat(klasor, Dosya::Ayniyat);
    const QString yil = EnBuyukMetin(ayniyat, QStringLiteral("FIS_B"), QStringLiteral("Mid(Tarih,7,4)"));
    const QString giris =
        AlanGetir(ayniyat, QStringLiteral("FIS"), QStringLiteral("min(FisNo)"),
                  QStringLiteral(" where FCins = 'G' and Mid(Tarih,7,4) = ? and val(Cikan) > 0 "
                                 "and Mid(HesapKod,1,3) <> '150'"),
                  {yil});
    const QString cikis = AlanGetir(ayniyat, QStringLiteral("FIS_B"), QStringLiteral("min(FisNo)"),
                                    QStringLiteral(" where FCins = 'C' and Mid(Tarih,7,4) = ?"), {yil});
    const auto yaz = [&](const QString& no, const QString& cins, const QString& tur) {
        if (no.isEmpty())
            return;
        const QString dosya = QDir(cikti).filePath(QStringLiteral("%1_%2_%3_%4.pdf").arg(tur, cins, yil, no));
        pdfYaz(fisSayfasi(klasor, no, cins, yil, tur), dosya);
        yazilanlar << dosya;
    };
    for (const char* tur : {"fis", "zimmet", "istek"})
        yaz(giris, QStringLiteral("G"), QString::fromLatin1(tur));
    yaz(cikis, QStringLiteral("C"), QStringLiteral("fis"));

    std::printf("Formlar PDF olarak yazıldı: %s\n", qPrintable(cikti));
    for (const QString& dosya : yazilanlar)
        std::printf("  %s\n", qPrintable(dosya));
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
    // Without a display the commands still print: Qt draws offscreen, with a
    // private runtime folder of its own where the session gives none.
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
#ifdef Q_OS_UNIX
        if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
            const QString yer = QDir::temp().filePath(QStringLiteral("tasinir-runtime-%1").arg(getuid()));
            QDir().mkpath(yer);
            QFile::setPermissions(yer, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
            qputenv("XDG_RUNTIME_DIR", yer.toLocal8Bit());
        }
#endif
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
            return ornekVeri(argumanlar, parser.value(satir));
        VeriKlasoru::Hazirla(klasor);
        if (komut == QLatin1String("ornek-formlar"))
            return ornekFormlar(klasor, parser.value(cikti));
        if (komut == QLatin1String("kod-plani-yukle"))
            return kodPlani(klasor, argumanlar);
        if (komut == QLatin1String("yazdir"))
            return yazdir(klasor, argumanlar, parser);
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
