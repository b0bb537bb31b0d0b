#include "satir_girisi.h"

#include "fis_satir.h"
#include "metin_sec.h"
#include "saat.h"
#include "satir_izgarasi.h"
#include "tarih_secici.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

namespace {

// A key that types a character into a box.
bool yaziTusuMu(const QKeyEvent* olay)
{
    return !olay->text().isEmpty() && olay->text().at(0).isPrint()
           && !(olay->modifiers() & (Qt::ControlModifier | Qt::AltModifier));
}

}

SatirGirisi::SatirGirisi(SatirIzgarasi* izgara, Islevler islevler, QObject* ebeveyn)
    : QObject(ebeveyn), T(izgara), m_islevler(std::move(islevler))
{
}

bool SatirGirisi::EnterMi(const QKeyEvent* olay)
{
    return olay->key() == Qt::Key_Return || olay->key() == Qt::Key_Enter;
}

bool SatirGirisi::Tus(QObject* nesne, QKeyEvent* olay)
{
    if (nesne == T)
        return IzgaraTusu(olay);
    if (!nesne || nesne != T->Editor())
        return false;
    if (TE1() && olay->key() == Qt::Key_Escape) {
        // Esc blanks the cell; there is nothing to undo to.
        TE1()->clear();
        T->setFocus();
        return true;
    }
    return TE1() ? TE1Tusu(olay) : EditorTusu(olay);
}

void SatirGirisi::SatirSil()
{
    T->setFocus();
    QList<QStringList> satirlar = T->Hucreler();
    FisSatir::SatirSil(satirlar, T->Row());
    T->HucreleriYaz(satirlar);
}

void SatirGirisi::AsagiKopyala(const std::function<bool(QList<QStringList>&, FisSatir::Hucre)>& kopya)
{
    const int satir = T->Row();
    const int sutun = T->Col();
    if (satir >= FisSatir::SatirSayisi) {
        SatirGit(satir + 1, sutun);
        return;
    }
    QList<QStringList> satirlar = T->Hucreler();
    const bool asagi = kopya(satirlar, {satir, sutun});
    T->HucreleriYaz(satirlar);
    if (asagi)
        T->HucreSec(satir + 1, sutun);
}

QString SatirGirisi::Hucre(int sutun) const
{
    return T->TextMatrix(T->Row(), sutun);
}

void SatirGirisi::HucreYaz(int sutun, const QString& metin)
{
    T->HucreYaz(T->Row(), sutun, metin);
}

QLineEdit* SatirGirisi::TE1() const
{
    return qobject_cast<QLineEdit*>(T->Editor());
}

QString SatirGirisi::KodMetni() const
{
    const auto* kutu = qobject_cast<const QComboBox*>(T->Editor());
    return kutu && T->Col() == FisSutun::HesapKod ? kutu->currentText() : Hucre(FisSutun::HesapKod);
}

void SatirGirisi::EditorOdak()
{
    T->Editor()->setFocus();
    if (QLineEdit* kutu = TE1())
        MetinSec(kutu);
}

bool SatirGirisi::SatirGit(int satir, int sutun)
{
    if (satir > FisSatir::SatirSayisi) {
        m_islevler.Bildir(QStringLiteral("Bir fişe en çok 25 satır yazılabilir."));
        return false;
    }
    T->HucreSec(satir, sutun);
    return true;
}

void SatirGirisi::TusuGonder(QWidget* hedef, QKeyEvent* olay)
{
    QKeyEvent kopya(olay->type(), olay->key(), olay->modifiers(), olay->text());
    QApplication::sendEvent(hedef, &kopya);
}

bool SatirGirisi::IzgaraTusu(QKeyEvent* olay)
{
    if (EnterMi(olay)) {
        IzgaraEnter();
        return true;
    }
    if (!yaziTusuMu(olay))
        return false;
    const int satir = T->Row();
    const int sutun = T->Col();
    switch (T->SutunEditoru(sutun)) {
    case EditorTuru::Liste: {
        auto* kutu = static_cast<QComboBox*>(T->Editor());
        kutu->setFocus();
        MetinSec(kutu);
        TusuGonder(kutu->lineEdit(), olay);
        return true;
    }
    case EditorTuru::Tarih: {
        auto* tarih = static_cast<TarihSecici*>(T->Editor());
        if (olay->key() == Qt::Key_Space && !tarih->Bos()) {
            HucreYaz(sutun, QString());
        } else {
            BugunYaz();
            tarih->setFocus();
        }
        return true;
    }
    case EditorTuru::Metin:
        if (sutun > FisSatir::SonSutun && !SatirGit(satir + 1, FisSutun::Sira))
            return true;
        EditorOdak();
        TusuGonder(TE1(), olay);
        return true;
    }
    return false;
}

void SatirGirisi::BugunYaz()
{
    auto* tarih = static_cast<TarihSecici*>(T->Editor());
    tarih->GunYaz(Saat::Bugun());
    HucreYaz(FisSutun::BelgeTarih, tarih->Metin());
}

void SatirGirisi::IzgaraEnter()
{
    const int satir = T->Row();
    const int sutun = T->Col();
    switch (sutun) {
    case FisSutun::HesapKod:
        m_islevler.KodEnter();
        T->HucreSec(satir, FisSutun::MalzAdi);
        EditorOdak();
        return;
    case FisSutun::MalzAdi:
    case FisSutun::Unite:
    case FisSutun::IslemTur:
        EditorOdak();
        return;
    case FisSutun::BelgeTarih:
        // Enter is a key like any other here: the date becomes today's.
        BugunYaz();
        EditorOdak();
        return;
    default: {
        const FisSatir::EnterSonucu sonuc = FisSatir::GridEnter({satir, sutun}, Hucre(FisSutun::BirimFiyat));
        if (!sonuc.tarih.isNull())
            HucreYaz(FisSutun::BelgeTarih, sonuc.tarih);
        if (SatirGit(sonuc.hucre.satir, sonuc.hucre.sutun))
            EditorOdak();
    }
    }
}

bool SatirGirisi::TE1Tusu(QKeyEvent* olay)
{
    const int satir = T->Row();
    const int sutun = T->Col();
    const auto git = [this](int r, int c) {
        T->setFocus();
        T->HucreSec(r, c);
        return true;
    };
    if (EnterMi(olay)) {
        T->setFocus();
        if (sutun < FisSatir::SonSutun)
            T->HucreSec(satir, sutun + 1);
        return true;
    }
    switch (olay->key()) {
    case Qt::Key_Up:
        return satir > 1 && git(satir - 1, sutun);
    case Qt::Key_Down:
        return satir < FisSatir::SatirSayisi && git(satir + 1, sutun);
    case Qt::Key_Left:
        return satir < FisSatir::SatirSayisi && sutun > FisSutun::HesapKod && git(satir, sutun - 1);
    case Qt::Key_Right:
        return sutun < FisSatir::SonSutun && git(satir, sutun + 1);
    default:
        return false;
    }
}

bool SatirGirisi::EditorTusu(QKeyEvent* olay)
{
    const int satir = T->Row();
    const int sutun = T->Col();
    const bool enter = EnterMi(olay);
    if (olay->key() == Qt::Key_Down) {
        if (satir < FisSatir::SatirSayisi)
            T->setFocus();
        SatirGit(satir + 1, sutun);
        return true;
    }
    if (olay->key() == Qt::Key_Left) {
        if (satir < FisSatir::SatirSayisi && sutun > FisSutun::HesapKod) {
            T->setFocus();
            T->HucreSec(satir, sutun - 1);
        }
        return true;
    }
    if (!enter && olay->key() != Qt::Key_Right)
        return false;
    // The screen's Enter on the code column adds the step to the name.
    if (sutun == FisSutun::HesapKod && enter)
        m_islevler.KodEnter();
    T->setFocus();
    if (sutun == FisSutun::HesapKod)
        T->HucreSec(satir, FisSutun::MalzAdi);
    else if (sutun == FisSutun::MalzAdi)
        T->HucreSec(satir, FisSutun::Ozellik);
    return true;
}
