#include "ornek_veri.h"

#include "dosyalar_arasi.h"
#include "dusum_kayit.h"
#include "dusum_listesi.h"
#include "fis_kayit.h"
#include "saat.h"
#include "veri.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <random>
#include <vector>

namespace {

// A material class: the plan code it falls under, its name, its unit and the
// range, in whole liras, that invoices show for one unit of it. The classes
// of a code stay together: they are numbered 001, 002, ... in this order.
struct MalzemeTanim
{
    const char* kod;
    const char* ad;
    const char* birim;
    int fiyatAlt;
    int fiyatUst;
};

const MalzemeTanim malzemeler[] = {
    {"150 01 01", "A4 Fotokopi Kağıdı 80 gr", "PAKET", 120, 170},
    {"150 01 01", "A3 Fotokopi Kağıdı 80 gr", "PAKET", 260, 360},
    {"150 01 01", "Renkli Fotokopi Kağıdı A4", "PAKET", 180, 260},
    {"150 01 01", "Bristol Kartonu 50x70", "ADET", 8, 15},
    {"150 01 01", "Kraft Torba Zarf 24x32", "PAKET", 90, 160},
    {"150 01 01", "Yapışkanlı Not Kağıdı", "PAKET", 25, 60},
    {"150 01 02", "Tükenmez Kalem Mavi", "KUTU", 90, 180},
    {"150 01 02", "Kurşun Kalem HB", "KUTU", 60, 120},
    {"150 01 02", "Beyaz Tahta Kalemi", "KUTU", 120, 240},
    {"150 01 02", "Fosforlu Kalem", "KUTU", 90, 170},
    {"150 01 02", "Silgi", "KUTU", 40, 90},
    {"150 01 02", "Cetvel 30 cm", "ADET", 10, 25},
    {"150 01 03", "Telli Dosya", "PAKET", 60, 120},
    {"150 01 03", "Geniş Klasör", "ADET", 35, 70},
    {"150 01 03", "Şeffaf Poşet Dosya", "PAKET", 40, 90},
    {"150 01 03", "Karton Klasör", "PAKET", 70, 140},
    {"150 01 03", "Arşiv Kutusu", "ADET", 30, 65},
    {"150 01 04", "Zımba Teli 24/6", "KUTU", 15, 35},
    {"150 01 04", "Ataş No:3", "KUTU", 10, 25},
    {"150 01 04", "Koli Bandı", "ADET", 20, 45},
    {"150 01 04", "Yazıcı Toneri", "ADET", 900, 2200},
    {"150 01 04", "Mürekkep Kartuşu", "ADET", 450, 1200},
    {"150 01 04", "Sıvı Yapıştırıcı", "ADET", 20, 50},
    {"150 01 05", "Taşınır İşlem Fişi", "CİLT", 80, 150},
    {"150 01 05", "Sınıf Defteri", "ADET", 60, 120},
    {"150 01 05", "Öğrenci Karnesi", "PAKET", 250, 450},
    {"150 01 05", "Zimmet Fişi", "CİLT", 70, 130},
    {"150 01 05", "Nöbet Defteri", "ADET", 50, 100},
    {"150 02 01", "Un", "KG", 20, 35},
    {"150 02 01", "Pirinç", "KG", 45, 80},
    {"150 02 01", "Kuru Fasulye", "KG", 60, 110},
    {"150 02 01", "Kırmızı Mercimek", "KG", 45, 85},
    {"150 02 01", "Makarna", "KG", 25, 45},
    {"150 02 01", "Ayçiçek Yağı", "LT", 55, 95},
    {"150 02 01", "Toz Şeker", "KG", 30, 50},
    {"150 02 01", "Domates Salçası", "KG", 70, 120},
    {"150 02 02", "Siyah Çay", "KG", 250, 400},
    {"150 02 02", "Damacana Su 19 lt", "ADET", 60, 110},
    {"150 02 02", "Meyve Suyu", "LT", 30, 60},
    {"150 02 02", "Ayran", "LT", 25, 45},
    {"150 02 02", "Türk Kahvesi", "KG", 500, 900},
    {"150 03 01", "Yerli Kömür", "TON", 6500, 9500},
    {"150 03 01", "Odun", "TON", 3000, 5000},
    {"150 03 01", "Pelet Yakıt", "TON", 7500, 11000},
    {"150 03 02", "Motorin", "LT", 40, 48},
    {"150 03 02", "Kalorifer Yakıtı", "LT", 30, 40},
    {"150 03 02", "Kurşunsuz Benzin", "LT", 42, 50},
    {"150 03 02", "Motor Yağı", "LT", 250, 400},
    {"150 03 03", "Doğal Gaz", "M3", 8, 14},
    {"150 03 03", "Tüp Gaz 12 kg", "TÜP", 600, 900},
    {"150 04 01", "İş Önlüğü", "ADET", 250, 500},
    {"150 04 01", "Laboratuvar Önlüğü", "ADET", 300, 600},
    {"150 04 01", "Eşofman Takımı", "TAKIM", 600, 1200},
    {"150 04 01", "Aşçı Kıyafeti", "TAKIM", 500, 900},
    {"150 04 02", "İş Eldiveni", "ÇİFT", 25, 60},
    {"150 04 02", "Cerrahi Maske", "KUTU", 60, 120},
    {"150 04 02", "Koruyucu Gözlük", "ADET", 80, 200},
    {"150 04 02", "Baret", "ADET", 150, 300},
    {"150 04 02", "İş Ayakkabısı", "ÇİFT", 900, 1600},
    {"150 05 01", "Çamaşır Suyu", "LT", 15, 30},
    {"150 05 01", "Yüzey Temizleyici", "LT", 40, 80},
    {"150 05 01", "Sıvı El Sabunu", "LT", 30, 60},
    {"150 05 01", "Bulaşık Deterjanı", "LT", 35, 70},
    {"150 05 01", "Cam Temizleyici", "LT", 35, 65},
    {"150 05 01", "Yer Temizleyici", "LT", 40, 75},
    {"150 05 02", "Paspas Takımı", "TAKIM", 250, 450},
    {"150 05 02", "Çöp Poşeti Büyük Boy", "RULO", 40, 80},
    {"150 05 02", "Islak Mop", "ADET", 80, 150},
    {"150 05 02", "Faraş ve Süpürge", "TAKIM", 90, 180},
    {"150 05 02", "Temizlik Bezi", "PAKET", 60, 120},
    {"150 05 03", "Tuvalet Kağıdı", "PAKET", 150, 280},
    {"150 05 03", "Kağıt Havlu", "PAKET", 120, 220},
    {"150 05 03", "Z Katlı Havlu", "KOLİ", 350, 600},
    {"150 05 03", "El Dezenfektanı", "LT", 60, 120},
    {"150 06 01", "Uzatma Kablosu 5 m", "ADET", 150, 300},
    {"150 06 01", "Priz", "ADET", 40, 90},
    {"150 06 01", "Elektrik Anahtarı", "ADET", 35, 80},
    {"150 06 01", "NYM Kablo 3x2,5", "METRE", 25, 45},
    {"150 06 01", "Otomatik Sigorta 16 A", "ADET", 60, 120},
    {"150 06 02", "LED Ampul 12 W", "ADET", 40, 90},
    {"150 06 02", "LED Panel 60x60", "ADET", 350, 650},
    {"150 06 02", "Floresan Lamba", "ADET", 50, 100},
    {"150 06 02", "LED Projektör 50 W", "ADET", 300, 600},
    {"150 06 03", "Kalem Pil AA", "PAKET", 60, 130},
    {"150 06 03", "İnce Pil AAA", "PAKET", 60, 130},
    {"150 06 03", "9 V Pil", "ADET", 60, 120},
    {"150 06 03", "Akü 12 V 60 Ah", "ADET", 2200, 3500},
    {"150 07 01", "Deney Tüpü", "PAKET", 80, 160},
    {"150 07 01", "Beher 250 ml", "ADET", 40, 90},
    {"150 07 01", "Erlenmayer 250 ml", "ADET", 50, 110},
    {"150 07 01", "Lam ve Lamel", "KUTU", 60, 140},
    {"150 07 01", "Plastik Pipet", "PAKET", 90, 180},
    {"150 07 01", "Filtre Kağıdı", "PAKET", 70, 150},
    {"150 07 02", "İlk Yardım Çantası", "ADET", 400, 900},
    {"150 07 02", "Sargı Bezi", "PAKET", 30, 70},
    {"150 07 02", "Yara Bandı", "KUTU", 40, 90},
    {"150 07 02", "Muayene Eldiveni", "KUTU", 90, 180},
    {"150 07 02", "Antiseptik Solüsyon", "ŞİŞE", 60, 130},
    {"150 07 03", "Hidroklorik Asit", "LT", 150, 300},
    {"150 07 03", "Sodyum Hidroksit", "KG", 120, 250},
    {"150 07 03", "Etil Alkol", "LT", 150, 300},
    {"150 07 03", "Saf Su", "LT", 10, 25},
    {"150 07 03", "Turnusol Kağıdı", "PAKET", 50, 120},
    {"150 08 01", "Çimento", "ÇUVAL", 150, 230},
    {"150 08 01", "Saten Alçı", "ÇUVAL", 150, 260},
    {"150 08 01", "Silikon", "ADET", 80, 160},
    {"150 08 01", "PVC Boru 100 mm", "METRE", 70, 130},
    {"150 08 01", "Lavabo Bataryası", "ADET", 600, 1400},
    {"150 08 01", "Seramik Yapıştırıcı", "ÇUVAL", 180, 300},
    {"150 08 02", "Vida Takımı", "KUTU", 80, 160},
    {"150 08 02", "Plastik Dübel", "PAKET", 40, 90},
    {"150 08 02", "Kapı Kolu", "ADET", 150, 350},
    {"150 08 02", "Asma Kilit", "ADET", 120, 300},
    {"150 08 02", "Menteşe", "ADET", 30, 80},
    {"150 08 02", "Çekiç", "ADET", 150, 300},
    {"150 08 03", "Plastik İç Cephe Boyası", "KG", 90, 160},
    {"150 08 03", "Sentetik Yağlı Boya", "KG", 200, 380},
    {"150 08 03", "Tavan Boyası", "KG", 50, 100},
    {"150 08 03", "Boya Fırçası", "ADET", 40, 120},
    {"150 08 03", "Boya Rulosu", "ADET", 80, 180},
    {"150 08 03", "Selülozik Tiner", "LT", 80, 150},
    {"150 09 01", "Tebeşir", "KUTU", 30, 70},
    {"150 09 01", "Pastel Boya", "KUTU", 60, 150},
    {"150 09 01", "Sulu Boya", "KUTU", 80, 180},
    {"150 09 01", "Resim Kağıdı 35x50", "PAKET", 150, 300},
    {"150 09 01", "Model Kili", "KG", 80, 160},
    {"150 09 01", "Öğrenci Makası", "ADET", 25, 60},
    {"150 09 02", "Voleybol Topu", "ADET", 800, 1800},
    {"150 09 02", "Futbol Topu", "ADET", 700, 1600},
    {"150 09 02", "Basketbol Topu", "ADET", 800, 1900},
    {"150 09 02", "Masa Tenisi Topu", "PAKET", 80, 200},
    {"150 09 02", "Atlama İpi", "ADET", 60, 150},
    {"150 09 02", "Badminton Topu", "KUTU", 150, 350},
    {"150 10 01", "Çim Tohumu", "KG", 250, 450},
    {"150 10 01", "Mevsimlik Çiçek Fidesi", "ADET", 20, 60},
    {"150 10 01", "Süs Ağacı Fidanı", "ADET", 80, 250},
    {"150 10 01", "Lale Soğanı", "PAKET", 60, 150},
    {"150 10 02", "Kompoze Gübre", "KG", 20, 45},
    {"150 10 02", "Torf", "ÇUVAL", 200, 400},
    {"150 10 02", "Böcek İlacı", "LT", 250, 600},
    {"150 10 02", "Sıvı Yaprak Gübresi", "LT", 150, 300},
    {"150 99 01", "Türk Bayrağı 100x150", "ADET", 150, 350},
    {"150 99 01", "Atatürk Posteri", "ADET", 60, 150},
    {"150 99 01", "Plaket", "ADET", 250, 600},
    {"150 99 01", "Madalya", "ADET", 40, 100},
    {"150 99 01", "Başarı Belgesi Kartonu", "PAKET", 100, 250},
    {"253 01 01", "Klima 18000 BTU", "ADET", 22000, 35000},
    {"253 01 01", "Kombi Cihazı", "ADET", 25000, 40000},
    {"253 01 01", "Elektrikli Radyatör", "ADET", 2500, 5000},
    {"253 01 01", "Sirkülasyon Pompası", "ADET", 5000, 12000},
    {"253 01 02", "Jeneratör 10 kVA", "ADET", 45000, 90000},
    {"253 01 02", "Kesintisiz Güç Kaynağı", "ADET", 6000, 18000},
    {"253 01 02", "Elektrik Dağıtım Panosu", "ADET", 8000, 20000},
    {"253 01 03", "Su Deposu 5 Ton", "ADET", 12000, 25000},
    {"253 01 03", "Hidrofor", "ADET", 9000, 20000},
    {"253 01 03", "Su Sebili", "ADET", 2500, 6000},
    {"253 01 03", "Su Arıtma Cihazı", "ADET", 6000, 15000},
    {"253 01 04", "Yangın Alarm Paneli", "ADET", 12000, 30000},
    {"253 01 04", "Duman Dedektörü", "ADET", 400, 1200},
    {"253 01 04", "Yangın Dolabı", "ADET", 4000, 9000},
    {"253 01 04", "Acil Aydınlatma Armatürü", "ADET", 600, 1500},
    {"253 02 01", "Darbeli Matkap", "ADET", 1800, 4500},
    {"253 02 01", "Akülü Vidalama", "ADET", 2500, 6000},
    {"253 02 01", "Avuç Taşlama", "ADET", 1500, 4000},
    {"253 02 01", "Kaynak Makinesi", "ADET", 5000, 12000},
    {"253 02 01", "Hava Kompresörü", "ADET", 6000, 15000},
    {"253 02 02", "Çim Biçme Makinesi", "ADET", 8000, 20000},
    {"253 02 02", "Motorlu Tırpan", "ADET", 6000, 14000},
    {"253 02 02", "Basınçlı Yıkama Makinesi", "ADET", 5000, 12000},
    {"253 02 02", "Kar Küreme Makinesi", "ADET", 25000, 50000},
    {"253 02 03", "Endüstriyel Bulaşık Makinesi", "ADET", 80000, 160000},
    {"253 02 03", "Sanayi Tipi Ocak", "ADET", 15000, 35000},
    {"253 02 03", "Hamur Yoğurma Makinesi", "ADET", 25000, 60000},
    {"253 02 03", "Patates Soyma Makinesi", "ADET", 20000, 45000},
    {"253 02 03", "Konveksiyonlu Fırın", "ADET", 60000, 140000},
    {"253 03 01", "Öğrenci Mikroskobu", "ADET", 8000, 25000},
    {"253 03 01", "Hassas Terazi", "ADET", 6000, 18000},
    {"253 03 01", "Etüv", "ADET", 15000, 35000},
    {"253 03 01", "Manyetik Karıştırıcı", "ADET", 5000, 14000},
    {"253 03 01", "Santrifüj", "ADET", 12000, 30000},
    {"253 03 02", "Tansiyon Aleti", "ADET", 800, 2500},
    {"253 03 02", "Temassız Ateş Ölçer", "ADET", 300, 1200},
    {"253 03 02", "Defibrilatör", "ADET", 60000, 120000},
    {"253 03 02", "Katlanır Sedye", "ADET", 5000, 12000},
    {"253 03 03", "Dijital Multimetre", "ADET", 800, 2500},
    {"253 03 03", "Dijital Kumpas", "ADET", 400, 1200},
    {"253 03 03", "Lazer Metre", "ADET", 1000, 3000},
    {"253 03 03", "Osiloskop", "ADET", 12000, 35000},
    {"253 03 04", "Projeksiyon Cihazı", "ADET", 15000, 35000},
    {"253 03 04", "Etkileşimli Tahta", "ADET", 45000, 90000},
    {"253 03 04", "Anfi ve Hoparlör Seti", "TAKIM", 12000, 30000},
    {"253 03 04", "Kablosuz Mikrofon", "ADET", 2500, 7000},
    {"253 03 04", "Televizyon 55 inç", "ADET", 15000, 30000},
    {"253 03 04", "Fotoğraf Makinesi", "ADET", 15000, 40000},
    {"253 03 05", "El Telsizi", "ADET", 2000, 6000},
    {"253 03 05", "IP Santral", "ADET", 15000, 35000},
    {"253 03 05", "Kablosuz Erişim Noktası", "ADET", 2500, 7000},
    {"253 03 05", "Ağ Anahtarı 24 Port", "ADET", 5000, 15000},
    {"254 01 01", "Binek Otomobil", "ADET", 900000, 1500000},
    {"254 01 02", "Okul Servis Minibüsü", "ADET", 1800000, 2800000},
    {"254 01 03", "Kamyonet", "ADET", 1100000, 1700000},
    {"254 01 04", "Bisiklet", "ADET", 6000, 15000},
    {"254 01 04", "Motosiklet", "ADET", 60000, 120000},
    {"254 01 05", "Bagaj Römorku", "ADET", 50000, 120000},
    {"254 04 02", "Bahçe Traktörü", "ADET", 300000, 600000},
    {"254 04 02", "Çapa Makinesi", "ADET", 15000, 35000},
    {"255 01 01", "Masaüstü Bilgisayar", "ADET", 18000, 32000},
    {"255 01 01", "Dizüstü Bilgisayar", "ADET", 22000, 45000},
    {"255 01 01", "Tablet Bilgisayar", "ADET", 8000, 18000},
    {"255 01 01", "Monitör 24 inç", "ADET", 3500, 7000},
    {"255 01 01", "Klavye ve Fare Seti", "TAKIM", 400, 1200},
    {"255 01 01", "Harici Disk 1 TB", "ADET", 1800, 3500},
    {"255 01 02", "Lazer Yazıcı", "ADET", 5000, 12000},
    {"255 01 02", "Renkli Lazer Yazıcı", "ADET", 12000, 25000},
    {"255 01 02", "Çok Fonksiyonlu Yazıcı", "ADET", 8000, 20000},
    {"255 01 02", "Doküman Tarayıcı", "ADET", 6000, 15000},
    {"255 01 02", "Fotokopi Makinesi", "ADET", 60000, 140000},
    {"255 01 03", "Masa Telefonu", "ADET", 600, 1500},
    {"255 01 03", "Telsiz Telefon", "ADET", 1200, 2800},
    {"255 01 03", "Faks Makinesi", "ADET", 4000, 9000},
    {"255 01 03", "IP Telefon", "ADET", 2500, 6000},
    {"255 01 04", "Hesap Makinesi", "ADET", 300, 900},
    {"255 01 04", "Evrak İmha Makinesi", "ADET", 4000, 12000},
    {"255 01 04", "Laminasyon Makinesi", "ADET", 2000, 5000},
    {"255 01 04", "Spiral Cilt Makinesi", "ADET", 2500, 6000},
    {"255 01 04", "Para Sayma Makinesi", "ADET", 5000, 12000},
    {"255 02 01", "Çalışma Masası", "ADET", 4000, 9000},
    {"255 02 01", "Toplantı Masası", "ADET", 9000, 20000},
    {"255 02 01", "Öğretmen Masası", "ADET", 3500, 7000},
    {"255 02 01", "Bilgisayar Masası", "ADET", 2500, 6000},
    {"255 02 01", "Yemekhane Masası", "ADET", 3000, 7000},
    {"255 02 02", "Döner Koltuk", "ADET", 3500, 8000},
    {"255 02 02", "Misafir Koltuğu", "ADET", 2500, 6000},
    {"255 02 02", "Öğretmen Sandalyesi", "ADET", 1200, 2800},
    {"255 02 02", "Üçlü Bekleme Koltuğu", "ADET", 5000, 11000},
    {"255 02 02", "Plastik Sandalye", "ADET", 400, 900},
    {"255 02 03", "Çelik Dosya Dolabı", "ADET", 6000, 13000},
    {"255 02 03", "Kitaplık", "ADET", 3000, 7000},
    {"255 02 03", "Öğretmen Dolabı", "ADET", 4000, 9000},
    {"255 02 03", "Çelik Raf", "ADET", 2000, 5000},
    {"255 02 03", "Para Kasası", "ADET", 9000, 20000},
    {"255 02 04", "Stor Perde", "M2", 350, 800},
    {"255 02 04", "Makine Halısı 200x300", "ADET", 3000, 8000},
    {"255 02 04", "Kapı Paspası", "ADET", 300, 900},
    {"255 02 04", "Tül Perde", "METRE", 150, 400},
    {"255 02 05", "İkili Öğrenci Sırası", "ADET", 2500, 5000},
    {"255 02 05", "Kürsü", "ADET", 3500, 8000},
    {"255 02 05", "Beyaz Yazı Tahtası", "ADET", 3000, 7000},
    {"255 02 05", "Mantar Pano", "ADET", 800, 2000},
    {"255 02 05", "Yeşil Yazı Tahtası", "ADET", 2500, 6000},
    {"255 03 01", "Çelik Tencere Seti", "TAKIM", 2500, 6000},
    {"255 03 01", "Yemek Tepsisi", "ADET", 150, 400},
    {"255 03 01", "Çatal Kaşık Bıçak Takımı", "TAKIM", 800, 2500},
    {"255 03 01", "Çay Takımı", "TAKIM", 600, 1500},
    {"255 03 01", "Servis Arabası", "ADET", 3000, 8000},
    {"255 03 02", "Buzdolabı", "ADET", 18000, 35000},
    {"255 03 02", "Çamaşır Makinesi", "ADET", 14000, 25000},
    {"255 03 02", "Bulaşık Makinesi", "ADET", 14000, 26000},
    {"255 03 02", "Derin Dondurucu", "ADET", 15000, 30000},
    {"255 03 02", "Elektrikli Semaver", "ADET", 4000, 9000},
    {"255 03 02", "Mikrodalga Fırın", "ADET", 4000, 9000},
    {"255 04 01", "İnsan İskeleti Modeli", "ADET", 5000, 12000},
    {"255 04 01", "Dünya Küresi", "ADET", 600, 1500},
    {"255 04 01", "Türkiye Fiziki Haritası", "ADET", 400, 1000},
    {"255 04 01", "Geometrik Cisimler Seti", "TAKIM", 500, 1400},
    {"255 04 01", "Torso Modeli", "ADET", 7000, 15000},
    {"255 04 01", "Teleskop", "ADET", 8000, 20000},
    {"255 04 02", "Basketbol Potası", "ADET", 15000, 35000},
    {"255 04 02", "Voleybol Filesi", "ADET", 1500, 3500},
    {"255 04 02", "Masa Tenisi Masası", "ADET", 8000, 18000},
    {"255 04 02", "Jimnastik Minderi", "ADET", 1500, 4000},
    {"255 04 02", "Futbol Kalesi", "TAKIM", 12000, 28000},
    {"255 04 02", "Koşu Bandı", "ADET", 20000, 45000},
    {"255 04 03", "Piyano", "ADET", 60000, 150000},
    {"255 04 03", "Bağlama", "ADET", 3000, 8000},
    {"255 04 03", "Klasik Gitar", "ADET", 3000, 9000},
    {"255 04 03", "Keman", "ADET", 4000, 12000},
    {"255 04 03", "Elektronik Org", "ADET", 8000, 20000},
    {"255 04 03", "Trampet", "ADET", 2000, 5000},
    {"255 05 01", "Roman", "ADET", 120, 350},
    {"255 05 01", "Hikâye Kitabı", "ADET", 80, 250},
    {"255 05 01", "Bilim Kitabı", "ADET", 150, 400},
    {"255 05 01", "Tarih Kitabı", "ADET", 150, 400},
    {"255 05 01", "Türkçe Sözlük", "ADET", 200, 600},
    {"255 05 01", "Yabancı Dil Kitabı", "ADET", 200, 500},
    {"255 05 02", "Ansiklopedi Seti", "TAKIM", 4000, 12000},
    {"255 05 02", "Bilim Dergisi Yıllık Cildi", "CİLT", 500, 1500},
    {"255 05 02", "Dünya Atlası", "ADET", 400, 1200},
    {"255 05 02", "Gazete Arşivi Cildi", "CİLT", 300, 900},
    {"255 06 01", "El Dokuma Kilim", "ADET", 8000, 25000},
    {"255 06 01", "Bakır Sini", "ADET", 3000, 9000},
    {"255 06 02", "Yağlı Boya Tablo", "ADET", 10000, 40000},
    {"255 06 02", "Atatürk Büstü", "ADET", 8000, 25000},
    {"255 06 02", "Seramik Pano", "ADET", 6000, 18000},
    {"255 07 01", "Muayene Masası", "ADET", 6000, 14000},
    {"255 07 01", "Tekerlekli Sandalye", "ADET", 5000, 12000},
    {"255 07 01", "İlaç Dolabı", "ADET", 3000, 8000},
    {"255 07 01", "Boy ve Kilo Ölçer", "ADET", 3000, 8000},
    {"255 07 02", "Laboratuvar Masası", "ADET", 15000, 35000},
    {"255 07 02", "Çeker Ocak", "ADET", 40000, 90000},
    {"255 07 02", "Göz Duşu", "ADET", 3000, 7000},
    {"255 07 02", "Kimyasal Dolabı", "ADET", 12000, 28000},
    {"255 07 02", "Laboratuvar Taburesi", "ADET", 800, 2000},
    {"255 08 01", "Güvenlik Kamerası", "ADET", 2000, 6000},
    {"255 08 01", "Kamera Kayıt Cihazı", "ADET", 5000, 14000},
    {"255 08 01", "Hırsız Alarm Paneli", "ADET", 6000, 15000},
    {"255 08 01", "Kartlı Geçiş Sistemi", "TAKIM", 10000, 25000},
    {"255 08 02", "Yangın Söndürme Tüpü 6 kg", "ADET", 800, 1800},
    {"255 08 02", "Yangın Söndürme Tüpü 12 kg", "ADET", 1400, 3000},
    {"255 08 02", "Yangın Battaniyesi", "ADET", 400, 1000},
    {"255 08 02", "Yangın Hortumu", "ADET", 2000, 5000},
    {"255 99 01", "Bayrak Direği", "ADET", 8000, 20000},
    {"255 99 01", "Vitrin", "ADET", 6000, 14000},
    {"255 99 01", "Askılık", "ADET", 800, 2500},
    {"255 99 01", "Duvar Saati", "ADET", 300, 900},
    {"255 99 01", "Alüminyum Merdiven", "ADET", 1500, 4000},
    {"255 99 01", "Vantilatör", "ADET", 1500, 3500},
};

// Rates below the general 20, by code prefix.
struct KdvTanim
{
    const char* onek;
    int oran;
};
const KdvTanim indirimliKdv[] = {
    {"150 02 01", 1},
    {"150 02 02", 10},
    {"150 07 02", 10},
    {"255 05", 10},
};

// Units a quantity may come in halves of.
const char* const bolunurBirimler[] = {"KG", "LT", "METRE", "M2", "M3", "TON"};

const char* const uniteler[] = {
    "Müdür Odası",
    "Müdür Yardımcıları Odası",
    "Öğretmenler Odası",
    "Memur Odası",
    "Rehberlik Servisi",
    "Kimya Laboratuvarı",
    "Fizik Laboratuvarı",
    "Biyoloji Laboratuvarı",
    "Bilişim Teknolojileri Sınıfı",
    "Kütüphane",
    "Spor Salonu",
    "Yemekhane",
    "Konferans Salonu",
    "Müzik Sınıfı",
    "Resim Atölyesi",
    "Revir",
    "Arşiv",
    "Kazan Dairesi",
    "9-A Dersliği",
    "10-A Dersliği",
    "11-A Dersliği",
    "12-A Dersliği",
};

// Staff names are made of these; each unit has two people who sign for it.
const char* const adlar[] = {
    "Ayşe",   "Mehmet", "Elif",  "Hasan", "Zeynep", "Murat", "Fatma",  "Ali",
    "Emine",  "Hüseyin", "Derya", "Osman", "Gülay",  "Serkan", "Sevgi", "İbrahim",
    "Nurcan", "Cemal",  "Özlem", "Kemal", "Hatice", "Tolga", "Sibel",
};
const char* const soyadlar[] = {
    "Yıldız", "Öztürk", "Aydın", "Özdemir", "Arslan", "Doğan", "Kılıç",  "Aslan",
    "Çetin",  "Kara",   "Koç",   "Kurt",    "Özkan",  "Şimşek", "Polat", "Korkmaz",
    "Erdem",  "Güneş",  "Aksoy", "Tekin",   "Bulut",  "Ünal",   "Acar",  "Karaca",
};

// The property officer signs the forms and receives the goods that come in.
const char* const tasinirYetkilisi = "Mehmet Kaya";

// Officers of the school as the forms print them.
struct SabitDeger
{
    const char* alan;
    const char* deger;
};
const SabitDeger sabitler[] = {
    {"KurumAdi", "Yeşiltepe Anadolu Lisesi Müdürlüğü"},
    {"KurumKod", "963512"},
    {"ilAdi", "Ankara"},
    {"ilKod", "06"},
    {"BirimAd", "Yeşiltepe Anadolu Lisesi"},
    {"BirimKod", "06.07.963512"},
    {"MuhasebeBirimiAdi", "Çankaya Malmüdürlüğü"},
    {"MuhasebeBirimiKod", "06170"},
    // Of each pair of signatory fields the first holds the title and the
    // second the name, as the constants screen's frames say ("Ünvanı ve Adı
    // Soyadı"); the forms print the name above the title.
    {"Muhasebeci1", "Malmüdürü"},
    {"Muhasebeci2", "Hülya Tan"},
    {"AyniyatMemuru1", "Taşınır Kayıt ve Kontrol Yetkilisi"},
    {"AyniyatMemuru2", tasinirYetkilisi},
    {"itaAmiri", "Okul Müdürü"},
    {"itaAmiriAd", "Ahmet Yılmaz"},
    {"AmbarMemur", "Ambar Memuru"},
    {"AmbarMemurAd", "Fatma Şahin"},
    {"HarcamaYetkilisi1", "Okul Müdürü"},
    {"HarcamaYetkilisi2", "Ahmet Yılmaz"},
    {"SayimBaskan", "Mustafa Çelik"},
    {"SayimBaskanUnvan", "Müdür Yardımcısı"},
    {"SayimUye1", "Zeynep Arslan"},
    {"SayimUyeUnvan1", "Fizik Öğretmeni"},
    {"SayimUye2", "Emre Koç"},
    {"SayimUyeUnvan2", "Bilişim Teknolojileri Öğretmeni"},
    {"KDV1", "20"},
    {"DamgaOran1", "0,948"},
};

// Where goods come from: the firm, what it sells (code prefixes separated by
// '|'), how often the school buys from it, and the series its invoice numbers
// begin with. A donor has no series: its gifts come with a report.
struct FirmaTanim
{
    const char* ad;
    const char* vergiDaire;
    const char* telefon;
    const char* adres;
    const char* kodlar;
    int siklik;
    const char* seri;
};
const FirmaTanim firmalar[] = {
    {"Deniz Kırtasiye Ltd. Şti.", "Kavaklıdere", "0312 418 26 40",
     "Kızılay Mah. Meşrutiyet Cad. No:18 Çankaya/ANKARA", "150 01|150 09 01|150 99", 20, "DKR"},
    {"Başkent Gıda Tic. A.Ş.", "Ostim", "0312 354 71 12", "Ostim OSB 1234. Cad. No:5 Yenimahalle/ANKARA",
     "150 02", 14, "BGD"},
    {"Anadolu Temizlik Ürünleri", "Yenimahalle", "0312 397 15 83",
     "Batıkent Bulvarı No:112 Yenimahalle/ANKARA", "150 04|150 05", 14, "ATU"},
    {"Güven Yapı Elektrik Ltd.", "Maltepe", "0312 231 44 09", "Celal Bayar Bulvarı No:41 Çankaya/ANKARA",
     "150 03|150 06|150 08|253 01", 12, "GYE"},
    {"Bilgi Bilişim Teknoloji", "Çankaya", "0312 466 90 21", "Cinnah Cad. No:77 Çankaya/ANKARA",
     "255 01|253 03 04|253 03 05|255 08 01", 10, "BBT"},
    {"Ergin Mobilya San. Tic.", "Yıldırım Beyazıt", "0312 350 62 30",
     "Siteler Mah. Karacakaya Cad. No:56 Altındağ/ANKARA", "255 02", 6, "EMS"},
    {"Kampüs Eğitim Araçları", "Kızılbey", "0312 425 37 74", "Necatibey Cad. No:23 Çankaya/ANKARA",
     "150 07 01|150 07 03|150 09 02|253 03 01|253 03 03|255 04|255 05|255 07 02", 10, "KEA"},
    {"Yıldız Beyaz Eşya Ltd.", "Mithatpaşa", "0312 433 18 55", "Ziya Gökalp Cad. No:9 Çankaya/ANKARA",
     "255 03|253 02 03", 3, "YBE"},
    {"Akın Otomotiv ve Makine", "Sincan", "0312 269 40 17", "Fatih Mah. Ankara Cad. No:204 Sincan/ANKARA",
     "254|253 02 01|253 02 02", 2, "AOM"},
    {"Yeşil Vadi Fidancılık", "Gölbaşı", "0312 484 11 60", "Eymir Yolu No:15 Gölbaşı/ANKARA", "150 10", 3,
     "YVF"},
    {"Merkez Ticaret Ltd. Şti.", "Ulus", "0312 311 27 93", "Anafartalar Cad. No:61 Altındağ/ANKARA",
     "150 07 02|253 01 04|253 03 02|255 06|255 07 01|255 08 02|255 99", 5, "MRK"},
    {"Okul Aile Birliği", "Kavaklıdere", "0312 419 05 28", "Yeşiltepe Mah. Okul Sok. No:1 Çankaya/ANKARA",
     "150 01|150 05|150 09|255 01|255 02|255 04|255 05", 4, nullptr},
    {"Yeşiltepe Belediyesi", "Çankaya", "0312 458 80 00", "Yeşiltepe Mah. Belediye Cad. No:3 Çankaya/ANKARA",
     "150 05|150 10|255 02|255 04 02|253 02 02", 2, nullptr},
};

// Brands that name a durable item on its voucher line.
const char* const markalar[] = {"Anka", "Vega", "Toros", "Atlas", "Nova", "Zirve"};

// Movement types (IslemTur): goods come in bought or given; consumables go
// out as consumption, durables mostly as 19, now and then as 9.
constexpr int satinAlma = 1;
constexpr int bagisAlma = 6;
constexpr int tuketimCikisi = 10;
const int dayanikliCikislari[] = {19, 19, 19, 9};

constexpr int ambarNo = 1;
constexpr int enCokSatir = 25;

// A fixed sequence of numbers; only the generator's raw output is used, so
// every standard library gives the same data.
class Zar
{
public:
    int Sayi(int n) { return int(m_uretec() % std::uint32_t(n)); }  // 0 .. n-1
    // alt .. ust, a span below 2^32.
    qint64 Aralik(qint64 alt, qint64 ust) { return alt + qint64(m_uretec() % std::uint64_t(ust - alt + 1)); }
    bool Yuzde(int yuzde) { return Sayi(100) < yuzde; }

private:
    std::mt19937 m_uretec{20240915u};
};

// A material class as the generator uses it.
struct Sinif
{
    QString kod;
    QString birim;
    int kdv;
    bool tuketim;  // a consumable, account 150
    bool bolunur;
    qint64 fiyat;  // kuruş
    int miktarUst;
    QStringList ozellikler;
};

struct Firma
{
    QString ad;
    QString seri;  // empty for a donor
    int siklik;
    std::vector<int> siniflar;
};

QString tarihMetni(const QDate& gun)
{
    return gun.toString(QStringLiteral("dd.MM.yyyy"));
}

// A price as the voucher screen asks it typed: kuruş after a point.
QString fiyatMetni(qint64 kurus)
{
    if (kurus % 100 == 0)
        return QString::number(kurus / 100);
    return QStringLiteral("%1.%2").arg(kurus / 100).arg(kurus % 100, 2, 10, QLatin1Char('0'));
}

QString kisiAdi(int sira)
{
    constexpr int adSayisi = int(std::size(adlar));
    constexpr int soyadSayisi = int(std::size(soyadlar));
    return QStringLiteral("%1 %2").arg(QString::fromUtf8(adlar[sira % adSayisi]),
                                        QString::fromUtf8(soyadlar[(sira * 7) % soyadSayisi]));
}

// A 13-digit article number under the national prefix, check digit included.
QString barkod(Zar& zar)
{
    QString rakamlar = QStringLiteral("869");
    for (int i = 0; i < 9; ++i)
        rakamlar.append(QChar(u'0' + zar.Sayi(10)));
    int toplam = 0;
    for (int i = 0; i < 12; ++i)
        toplam += rakamlar.at(i).digitValue() * (i % 2 == 0 ? 1 : 3);
    rakamlar.append(QChar(u'0' + (10 - toplam % 10) % 10));
    return rakamlar;
}

int kdvOrani(const QString& kod)
{
    for (const KdvTanim& tanim : indirimliKdv)
        if (kod.startsWith(QLatin1String(tanim.onek)))
            return tanim.oran;
    return 20;
}

// The largest quantity one entry line brings: cheap consumables come by the
// hundred, durables a few at a time.
int miktarUstu(bool tuketim, qint64 fiyat)
{
    const qint64 lira = fiyat / 100;
    if (tuketim)
        return lira < 50 ? 200 : lira < 300 ? 60 : lira < 2000 ? 20 : 10;
    return lira < 1000 ? 30 : lira < 10000 ? 10 : lira < 100000 ? 3 : 1;
}

bool satirVar(Veritabani& vt, std::initializer_list<const char*> tablolar)
{
    for (const char* tablo : tablolar)
        if (!vt.Satirlar(QStringLiteral("select 1 from %1 limit 1").arg(QLatin1String(tablo))).isEmpty())
            return true;
    return false;
}

void sabitleriYaz(Veritabani& vt)
{
    QStringList alanlar;
    QVariantList degerler;
    for (const SabitDeger& sabit : sabitler) {
        alanlar.append(QStringLiteral("%1 = ?").arg(QLatin1String(sabit.alan)));
        degerler.append(QString::fromUtf8(sabit.deger));
    }
    vt.Calistir(QStringLiteral("update Sabit set %1 where Anahtar = 1").arg(alanlar.join(QStringLiteral(", "))),
                degerler);
}

std::vector<Sinif> siniflariYaz(Veritabani& vt, Zar& zar)
{
    HazirKomut yazici(vt, QStringLiteral("insert into URUN_K (HesapKod, MalzAdi, Birimi, KDV1, Barkod, Stok, EskiKod,"
                                     " AnaHesapNo) values (?, ?, ?, ?, ?, ?, '', ?)"));
    std::vector<Sinif> siniflar;
    QString oncekiKod;
    int sira = 0;
    for (const MalzemeTanim& tanim : malzemeler) {
        const QString ust = QString::fromUtf8(tanim.kod);
        sira = ust == oncekiKod ? sira + 1 : 1;
        oncekiKod = ust;

        Sinif sinif;
        sinif.kod = QStringLiteral("%1 %2").arg(ust).arg(sira, 3, 10, QLatin1Char('0'));
        sinif.birim = QString::fromUtf8(tanim.birim);
        sinif.kdv = kdvOrani(sinif.kod);
        sinif.tuketim = sinif.kod.startsWith(QLatin1String("150"));
        sinif.bolunur = std::any_of(std::begin(bolunurBirimler), std::end(bolunurBirimler),
                                    [&](const char* birim) { return sinif.birim == QString::fromUtf8(birim); });
        sinif.fiyat = zar.Aralik(qint64(tanim.fiyatAlt) * 100, qint64(tanim.fiyatUst) * 100);
        sinif.miktarUst = miktarUstu(sinif.tuketim, sinif.fiyat);
        const QString ad = QString::fromUtf8(tanim.ad);
        sinif.ozellikler.append(ad.left(30));
        if (!sinif.tuketim)
            for (const char* marka : markalar) {
                const QString markali = QStringLiteral("%1 %2").arg(QString::fromUtf8(marka), ad);
                if (markali.size() <= 30)
                    sinif.ozellikler.append(markali);
            }

        const int stok = sinif.tuketim ? 5 + zar.Sayi(16) : 0;
        const QString kod = sinif.tuketim && zar.Yuzde(60) ? barkod(zar) : QString();
        yazici.Calistir({sinif.kod, ad, sinif.birim, QString::number(sinif.kdv), kod, stok, sinif.kod.left(3).toInt()});
        siniflar.push_back(std::move(sinif));
    }
    return siniflar;
}

void uniteleriYaz(Veritabani& vt)
{
    HazirKomut yazici(vt, QStringLiteral("insert into Unite_K (UniteKod, UniteAd) values (?, ?)"));
    int kod = 0;
    for (const char* ad : uniteler)
        yazici.Calistir({QString::number(++kod), QString::fromUtf8(ad)});
}

std::vector<Firma> firmalariYaz(Veritabani& vt, const std::vector<Sinif>& siniflar, Zar& zar)
{
    HazirKomut yazici(vt, QStringLiteral("insert into Firma_K (FirmaKod, FirmaAd, VergiNo, VergiDaire, Telefon, Adres)"
                                     " values (?, ?, ?, ?, ?, ?)"));
    std::vector<Firma> liste;
    int kod = 0;
    for (const FirmaTanim& tanim : firmalar) {
        Firma firma;
        firma.ad = QString::fromUtf8(tanim.ad);
        firma.seri = QString::fromLatin1(tanim.seri);
        firma.siklik = tanim.siklik;
        const QStringList onekler = QString::fromUtf8(tanim.kodlar).split(u'|');
        for (int i = 0; i < int(siniflar.size()); ++i)
            if (std::any_of(onekler.begin(), onekler.end(),
                            [&](const QString& onek) { return siniflar[i].kod.startsWith(onek); }))
                firma.siniflar.push_back(i);
        const QString vergiNo = QString::number(zar.Aralik(1000000000LL, 4999999999LL));
        yazici.Calistir({QString::number(++kod), firma.ad, vergiNo, QString::fromUtf8(tanim.vergiDaire),
                    QString::fromUtf8(tanim.telefon), QString::fromUtf8(tanim.adres)});
        liste.push_back(std::move(firma));
    }
    return liste;
}

// The days vouchers fall on, from the first of January two years back to
// today: no weekends, no fixed public holidays.
std::vector<QDate> isGunleri()
{
    static constexpr int tatiller[][2] = {{1, 1}, {23, 4}, {1, 5}, {19, 5}, {15, 7}, {30, 8}, {29, 10}};
    const QDate bugun = Saat::Bugun();
    std::vector<QDate> gunler;
    for (QDate gun(bugun.year() - 2, 1, 1); gun <= bugun; gun = gun.addDays(1)) {
        const bool tatil = std::any_of(std::begin(tatiller), std::end(tatiller), [&](const int* t) {
            return gun.day() == t[0] && gun.month() == t[1];
        });
        if (gun.dayOfWeek() <= 5 && !tatil)
            gunler.push_back(gun);
    }
    return gunler;
}

// Line counts of the vouchers: mostly up to ten, now and then up to 25, the
// last one cut so that the lines come to `satir` exactly.
std::vector<int> satirSayilari(int satir, Zar& zar)
{
    std::vector<int> sayilar;
    for (int kalan = satir; kalan > 0;) {
        const int n = std::min(kalan, zar.Yuzde(90) ? 1 + zar.Sayi(10) : 11 + zar.Sayi(enCokSatir - 10));
        sayilar.push_back(n);
        kalan -= n;
    }
    return sayilar;
}

// Writes the vouchers in date order and keeps the stock of every class, so
// that an issue never takes more than came in before it.
class FisUretici
{
public:
    FisUretici(Veritabani& vt, const std::vector<Sinif>& siniflar, const std::vector<Firma>& firmalar, Zar& zar)
        : m_siniflar(siniflar),
          m_firmalar(firmalar),
          m_zar(zar),
          m_vt(vt),
          m_stok(siniflar.size(), 0),
          m_konum(siniflar.size(), -1),
          m_faturaSira(firmalar.size(), 0)
    {
        for (const Firma& firma : m_firmalar)
            m_toplamSiklik += firma.siklik;
    }

    void Yaz(int satir)
    {
        const std::vector<int> sayilar = satirSayilari(satir, m_zar);
        const std::vector<QDate> gunler = isGunleri();
        const qint64 fisSayisi = qint64(sayilar.size());
        for (qint64 i = 0; i < fisSayisi; ++i) {
            const QDate gun = gunler[std::size_t(i * qint64(gunler.size()) / fisSayisi)];
            if (gun.year() != m_yil)
                yilBasi(gun.year());
            const int n = sayilar[std::size_t(i)];
            if (m_zar.Yuzde(30) && stoktakiSinifSayisi() >= n)
                cikisYaz(gun, n);
            else
                girisYaz(gun, n);
        }
    }

private:
    struct Bas
    {
        int fisNo = 0;
        QString fcins;
        QString tarih;
        QString kabulSayi;
        QString teslimAlan;
        QString neredenGeldigi;
        QString belgeTarih;
        QString belgeSayi;
        QString belgeTur;
    };

    struct Satir
    {
        int sinif = 0;
        QString ozellik;
        QString miktar;
        QString cikan;
        QString fiyat;
        QString unite;
        QString kisi;
        int islemTur = 0;
    };

    void yilBasi(int yil)
    {
        m_yil = yil;
        m_yilMetni = QString::number(yil);
        m_girisNo = m_cikisNo = m_belgeSira = 0;
        std::fill(m_faturaSira.begin(), m_faturaSira.end(), 0);
    }

    // Another number for a report, a contract or a request of this year.
    QString belgeNumarasi() { return QStringLiteral("%1/%2").arg(m_yil).arg(++m_belgeSira); }

    int firmaSec()
    {
        int kalan = m_zar.Sayi(m_toplamSiklik);
        int i = 0;
        while (kalan >= m_firmalar[std::size_t(i)].siklik)
            kalan -= m_firmalar[std::size_t(i++)].siklik;
        return i;
    }

    const QString& ozellikSec(int sinif)
    {
        const QStringList& ozellikler = m_siniflar[std::size_t(sinif)].ozellikler;
        return ozellikler.at(m_zar.Sayi(int(ozellikler.size())));
    }

    // A unit and one of the two people who sign for it.
    std::pair<QString, QString> teslimEdilen()
    {
        const int unite = m_zar.Sayi(int(std::size(uniteler)));
        return {QString::number(unite + 1), kisiAdi(unite * 2 + m_zar.Sayi(2))};
    }

    void girisYaz(const QDate& gun, int n)
    {
        const int f = firmaSec();
        const Firma& firma = m_firmalar[std::size_t(f)];
        const bool bagis = firma.seri.isEmpty();

        Bas bas;
        bas.fisNo = ++m_girisNo;
        bas.fcins = QStringLiteral("G");
        bas.tarih = tarihMetni(gun);
        bas.kabulSayi = QString::number(bas.fisNo);
        bas.teslimAlan = QString::fromUtf8(tasinirYetkilisi);
        bas.neredenGeldigi = firma.ad;
        bas.belgeTarih = tarihMetni(std::max(gun.addDays(-m_zar.Sayi(6)), QDate(gun.year(), 1, 1)));
        if (bagis) {
            static const char* const turler[] = {"Tutanak", "Karar", "Protokol"};
            bas.belgeTur = QString::fromUtf8(turler[m_zar.Sayi(3)]);
            bas.belgeSayi = belgeNumarasi();
        } else if (m_zar.Yuzde(92)) {
            bas.belgeTur = QStringLiteral("Fatura");
            // The firm's series, the year and the firm's running number.
            const int sira = ++m_faturaSira[std::size_t(f)];
            bas.belgeSayi = QStringLiteral("%1%2%3").arg(firma.seri, m_yilMetni).arg(sira, 5, 10, QLatin1Char('0'));
        } else {
            bas.belgeTur = QStringLiteral("Sözleşme");
            bas.belgeSayi = belgeNumarasi();
        }

        // Goods handed straight to a unit go to one room and one person.
        const auto [unite, kisi] = teslimEdilen();
        const int islemTur = bagis ? bagisAlma : satinAlma;
        const int havuz = int(firma.siniflar.size());
        const int ilk = m_zar.Sayi(havuz);
        const int adim = 1 + m_zar.Sayi(3);
        m_satirlar.clear();
        for (int k = 0; k < n; ++k) {
            Satir satir;
            satir.sinif = firma.siniflar[std::size_t((ilk + k * adim) % havuz)];
            const Sinif& sinif = m_siniflar[std::size_t(satir.sinif)];
            const int miktar = 1 + m_zar.Sayi(sinif.miktarUst);
            const bool yarim = sinif.bolunur && m_zar.Yuzde(10);
            satir.ozellik = ozellikSec(satir.sinif);
            satir.miktar = yarim ? QStringLiteral("%1.5").arg(miktar) : QString::number(miktar);
            // Half a unit of an even price: the line comes to whole kuruş,
            // so the printed lines add up to the printed total.
            const qint64 fiyat = satirFiyati(sinif.fiyat);
            satir.fiyat = fiyatMetni(yarim ? fiyat - fiyat % 2 : fiyat);
            satir.islemTur = islemTur;
            if (m_zar.Yuzde(sinif.tuketim ? 5 : 50)) {
                satir.cikan = satir.miktar;
                satir.unite = unite;
                satir.kisi = kisi;
            } else {
                stokEkle(satir.sinif, miktar);
            }
            m_satirlar.push_back(std::move(satir));
        }
        yaz(bas);
    }

    void cikisYaz(const QDate& gun, int n)
    {
        const auto [unite, kisi] = teslimEdilen();
        Bas bas;
        bas.fisNo = ++m_cikisNo;
        bas.fcins = QStringLiteral("C");
        bas.tarih = tarihMetni(gun);
        bas.teslimAlan = kisi;
        bas.belgeTarih = bas.tarih;
        // The request form's type name is longer than the column allows;
        // an issue goes out on the approval of the request instead.
        const int tur = m_zar.Sayi(10);
        bas.belgeTur = tur < 6   ? QStringLiteral("Onay")
                       : tur < 9 ? QStringLiteral("Tutanak")
                                 : QStringLiteral("Diğer");
        bas.belgeSayi = belgeNumarasi();

        m_satirlar.clear();
        for (int k = 0; k < n; ++k) {
            // Rooms ask mostly for consumables.
            const bool tuketim = m_stokta[1].empty() || (!m_stokta[0].empty() && m_zar.Yuzde(80));
            const std::vector<int>& liste = m_stokta[tuketim ? 0 : 1];
            Satir satir;
            satir.sinif = liste[std::size_t(m_zar.Sayi(int(liste.size())))];
            const Sinif& sinif = m_siniflar[std::size_t(satir.sinif)];
            const qint64 ust = std::min<qint64>(m_stok[std::size_t(satir.sinif)], tuketim ? 20 : 3);
            const int cikan = 1 + m_zar.Sayi(int(ust));
            satir.ozellik = ozellikSec(satir.sinif);
            satir.cikan = QString::number(cikan);
            satir.fiyat = fiyatMetni(sinif.fiyat);
            satir.unite = unite;
            satir.kisi = kisi;
            satir.islemTur = tuketim ? tuketimCikisi
                                     : dayanikliCikislari[m_zar.Sayi(int(std::size(dayanikliCikislari)))];
            stokEkle(satir.sinif, -cikan);
            m_satirlar.push_back(std::move(satir));
        }
        yaz(bas);
    }

    // The invoice price of a line: within a tenth of the class's price,
    // whole liras above a thousand, quarters below.
    qint64 satirFiyati(qint64 fiyat)
    {
        const qint64 kurus = fiyat * (90 + m_zar.Sayi(21)) / 100;
        const qint64 birim = kurus >= 100000 ? 100 : 25;
        return std::max(birim, kurus / birim * birim);
    }

    // Through the voucher's own save, as a user would have typed it.
    void yaz(const Bas& bas)
    {
        FisEkrani fis;
        fis.FisNo = QString::number(bas.fisNo);
        fis.Tarih = bas.tarih;
        fis.FCins = fis.Hangi = bas.fcins;
        fis.CalisYil = m_yilMetni;
        fis.CalisAy = bas.tarih.mid(3, 2);
        fis.KabulSayi = bas.kabulSayi;
        fis.KabulTarih = bas.tarih;
        fis.TeslimAlan = bas.teslimAlan;
        fis.NeredenGeldigi = bas.neredenGeldigi;
        fis.BelgeTur = bas.belgeTur;
        fis.BelgeSayi = bas.belgeSayi;
        for (const Satir& satir : m_satirlar) {
            const Sinif& sinif = m_siniflar[std::size_t(satir.sinif)];
            fis.Satirlar.append({QString(), sinif.kod, QString(), satir.ozellik, sinif.birim, satir.miktar,
                                 satir.fiyat, bas.belgeTarih, satir.unite, QString::number(satir.islemTur),
                                 satir.cikan, satir.kisi, QString::number(ambarNo), QString::number(sinif.kdv),
                                 QString(), QString(), QString()});
        }
        if (FisKayit::Kaydet(m_vt, fis, [] { return true; }) != KayitSonucu::Kaydedildi)
            throw VeriHatasi(QStringLiteral("Örnek fiş kaydedilemedi: %1").arg(fis.FisNo));
    }

    int stoktakiSinifSayisi() const { return int(m_stokta[0].size() + m_stokta[1].size()); }

    // Keeps the lists of classes in stock, by kind, for the issues to draw on.
    void stokEkle(int sinif, qint64 miktar)
    {
        const std::size_t i = std::size_t(sinif);
        m_stok[i] += miktar;
        std::vector<int>& liste = m_stokta[m_siniflar[i].tuketim ? 0 : 1];
        if (m_stok[i] > 0 && m_konum[i] < 0) {
            m_konum[i] = int(liste.size());
            liste.push_back(sinif);
        } else if (m_stok[i] == 0 && m_konum[i] >= 0) {
            const int son = liste.back();
            liste[std::size_t(m_konum[i])] = son;
            m_konum[std::size_t(son)] = m_konum[i];
            liste.pop_back();
            m_konum[i] = -1;
        }
    }

    const std::vector<Sinif>& m_siniflar;
    const std::vector<Firma>& m_firmalar;
    Zar& m_zar;
    Veritabani& m_vt;
    std::vector<qint64> m_stok;
    std::vector<int> m_konum;
    std::vector<int> m_stokta[2];  // consumables, durables
    std::vector<int> m_faturaSira;
    std::vector<Satir> m_satirlar;
    int m_toplamSiklik = 0;
    int m_yil = 0;
    QString m_yilMetni;
    int m_girisNo = 0;
    int m_cikisNo = 0;
    int m_belgeSira = 0;
};

// Write-offs of broken durables, each of three lines at most, made as the
// write-off screen makes them: lines picked from its material list, the whole
// quantity a unit holds written off. One in each of the two years before, on
// its last working day, of goods that came in that year; one on the last
// working day up to today, of goods of the year before. The commission is
// the count committee, its member taking turns.
void dusumleriYaz(Veritabani& genel, Veritabani& ayniyat)
{
    struct Uye
    {
        const char* ad;
        const char* unvan;
    };
    static constexpr Uye uyeler[] = {{"Zeynep Arslan", "Fizik Öğretmeni"},
                                     {"Emre Koç", "Bilişim Teknolojileri Öğretmeni"}};
    constexpr int enCokSatir = 3;
    const std::vector<QDate> gunler = isGunleri();
    const int buYil = Saat::Bugun().year();
    for (int yil = buYil - 2; yil <= buYil; ++yil) {
        const auto sonGun = std::upper_bound(gunler.begin(), gunler.end(), QDate(yil, 12, 31));
        if (sonGun == gunler.begin() || std::prev(sonGun)->year() != yil)
            continue;
        const QString girisYili = QString::number(yil < buYil ? yil : yil - 1);
        const QList<QStringList> adaylar = ayniyat.Satirlar(
            QStringLiteral("Select Unite, Ozellik, BelgeTarih, FisNo, Tarih, KimeVerildigi, BirimFiyat, Birimi, "
                           "HesapKod, Satir, Cikan From FIS where FCins = 'G' and Cikan <> '' and FCinss = '' and "
                           "Mid(HesapKod,1,3) <> '150' and Mid(Tarih,7,4) = ? order by TarihSayi(Tarih), FisNo, Satir"),
            {girisYili});
        if (adaylar.isEmpty())
            continue;
        const Uye& uye = uyeler[yil % 2];
        DusumEkrani d;
        d.CalisYil = QString::number(yil);
        d.FisNo = QString::number(DusumKayit::Sonk(ayniyat, d.CalisYil));
        d.Tarih = tarihMetni(*std::prev(sonGun));
        d.KomisyonBaskaniAdi = QStringLiteral("Mustafa Çelik");
        d.KomisyonBaskaniUnvani = QStringLiteral("Müdür Yardımcısı");
        d.UyeAdi = QString::fromUtf8(uye.ad);
        d.UyeUnvani = QString::fromUtf8(uye.unvan);
        // Lines spread over the year.
        const qsizetype sayi = std::min<qsizetype>(adaylar.size(), enCokSatir);
        for (qsizetype i = 0; i < sayi; ++i) {
            const QStringList& aday = adaylar.at(i * adaylar.size() / sayi);
            QStringList satir = DusumListesi::GridSatiri(DusumListesi::SecilenSatir(genel, aday.mid(0, 10)));
            satir[DusumSutun::Miktar] = aday.at(10);
            d.Satirlar << satir;
        }
        if (DusumKayit::Kaydet(ayniyat, d, [] { return true; }) != DusumSonucu::Kaydedildi)
            throw VeriHatasi(QStringLiteral("Örnek düşüm kaydedilemedi: %1").arg(d.FisNo));
    }
}

}

bool KayitVar(Veri& veri)
{
    return satirVar(veri.Genel(), {"URUN_K", "Unite_K", "Firma_K"})
           || satirVar(veri.Ayniyat(), {"FIS_B", "FIS", "DUSUM_B"});
}

void OrnekVeriYaz(Veri& veri, int satir)
{
    const QString& klasor = veri.Klasor();
    Veritabani& genel = veri.Genel();
    Veritabani& ayniyat = veri.Ayniyat();
    // Room for the indexes of a large set: the default cache sends every
    // index page back and forth to the disk.
    ayniyat.Calistir(QStringLiteral("PRAGMA cache_size = -65536"));
    if (KayitVar(veri))
        throw VeriHatasi(QStringLiteral("Örnek veri yalnız boş bir veri klasörüne yazılır: %1")
                             .arg(QDir::toNativeSeparators(klasor)));
    // The vouchers commit before the classes they name, under a record that
    // takes them out again until the classes are in.
    const qint64 kayit = DosyalarArasi::Kaydet(genel, QStringLiteral("Örnek veri"),
                                               {{Dosya::Ayniyat, QStringLiteral("delete from FIS"), {}},
                                                {Dosya::Ayniyat, QStringLiteral("delete from FIS_B"), {}},
                                                {Dosya::Ayniyat, QStringLiteral("delete from DUSUM_B"), {}}});
    DosyalarArasi::Yaz(veri, kayit, [&] {
        Islem genelIslem(genel);
        Islem ayniyatIslem(ayniyat);
        Zar zar;
        sabitleriYaz(genel);
        const std::vector<Sinif> siniflar = siniflariYaz(genel, zar);
        uniteleriYaz(genel);
        const std::vector<Firma> firmaListesi = firmalariYaz(genel, siniflar, zar);
        FisUretici(ayniyat, siniflar, firmaListesi, zar).Yaz(satir);
        dusumleriYaz(genel, ayniyat);
        ayniyatIslem.Onayla();
        DosyalarArasi::Sil(genel, kayit);
        genelIslem.Onayla();
    });
}
