#include "veri.h"

#include "dosyalar_arasi.h"
#include "sema.h"
#include "veri_klasoru.h"

Veri::Veri(const QString& klasor) : m_klasor(klasor), m_olusturulanlar(VeriKlasoru::Hazirla(klasor))
{
    for (Dosya d : VeriDosyalari) {
        auto vt = std::make_unique<Veritabani>(VeriKlasoru::DosyaYolu(klasor, DosyaAdi(d)));
        // Files of earlier builds are brought to this schema, and get the
        // tables they lack.
        Sema::Guncelle(*vt);
        Sema::Tamamla(*vt, d);
        m_baglantilar[std::size_t(d)] = std::move(vt);
    }
    m_tamamlananlar = DosyalarArasi::Tamamla(*this);
}

Veri::~Veri() = default;

Veritabani& Veri::Baglanti(Dosya dosya)
{
    return *m_baglantilar[std::size_t(dosya)];
}
