#pragma once

#include "dosya.h"
#include "veritabani.h"

#include <QList>
#include <QStringList>

#include <array>
#include <memory>

// The data files of one folder, opened once and held for the run (or for a
// test's life): the logic is handed the connection it needs as Veritabani&.
// A connection belongs to the thread that made this object.
class Veri
{
public:
    // Makes the folder ready (see VeriKlasoru::Hazirla) and opens every data
    // file, so that a missing or unreadable one is named at once, and
    // finishes or undoes the writes across files an interrupted run left
    // (DosyalarArasi). Throws EksikDosyaHatasi or VeriHatasi.
    explicit Veri(const QString& klasor);
    ~Veri();
    Veri(const Veri&) = delete;
    Veri& operator=(const Veri&) = delete;

    const QString& Klasor() const { return m_klasor; }
    // The files this object made because the folder was new.
    const QList<Dosya>& Olusturulanlar() const { return m_olusturulanlar; }
    // Writes across files that an interrupted run left, finished or undone
    // while opening, as sentences for the user.
    const QStringList& Tamamlananlar() const { return m_tamamlananlar; }

    Veritabani& Baglanti(Dosya dosya);
    Veritabani& Genel() { return Baglanti(Dosya::Genel); }
    Veritabani& Ayniyat() { return Baglanti(Dosya::Ayniyat); }
    Veritabani& HesapKod() { return Baglanti(Dosya::HesapKod); }

private:
    QString m_klasor;
    QList<Dosya> m_olusturulanlar;
    QStringList m_tamamlananlar;
    std::array<std::unique_ptr<Veritabani>, std::size(VeriDosyalari)> m_baglantilar;
};
