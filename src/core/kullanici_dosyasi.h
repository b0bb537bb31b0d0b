#pragma once

#include "hata.h"

#include <QString>
#include <QTemporaryFile>

// A file written for the user (a PDF, a spreadsheet): written under a name
// of its own beside the target, checked as it lies on disk, then renamed
// over the target in one step. A failure leaves the old file, or none,
// never half of one; dropped before Yerlestir, the temporary file goes.
class KullaniciDosyasi
{
public:
    // Opens the temporary file; throws Hata when it cannot be made.
    explicit KullaniciDosyasi(const QString& hedef);

    QTemporaryFile& Gecici() { return m_gecici; }
    const QString& Hedef() const { return m_hedef; }

    // The user's message for a file that could not be written, and why.
    Hata Yazilamadi(const QString& neden) const;
    // Puts the finished temporary file in the target's place. tamam tells
    // whether the check of what lies on disk found it whole; throws Hata
    // when not, or when the rename fails.
    void Yerlestir(bool tamam);

private:
    QString m_hedef;
    QTemporaryFile m_gecici;
};
