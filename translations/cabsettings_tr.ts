<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Pencereler, dosyalar ve bağlantılar</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Ayar dosyası</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Ayar profilleri</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Destek dosyaları</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Gün doğumu ve gün batımı</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Sınırlar ve bölgeler</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Yazılım</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Bu ekranın yazılımı</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Ayarlar, birimler ve günlükler</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Cihazın saati; ayarlanmadı.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Saat elle ayarlandı.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Saati alıcı ayarlıyor.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Böyle bir tarih veya saat yok.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Tarih, cihazın saatinden 68 yıldan fazla sapıyor.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Saat kaydedilemedi.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Yıl</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Ay</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Gün</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Dakika</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Tarih ve saat</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: artır</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: azalt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Tamam</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: azalt</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: artır</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Önceki</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Önceki renk</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Varsayılan</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Renk rakamları</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Renk tonu</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Doygunluk</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Açıklık</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Gündüz</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Gece</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>“%1” üstünde: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>“%1” altında: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, çok düşük: en az %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>İki tarafta da değişti</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Burada</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>Yeniden başlat</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Ekranın yazı tipleri</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Ekran klavyesi</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Çalışma</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Tarlalar</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Alıcı</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Günlükler</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 boş, toplam %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Bilinmiyor</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>USB yok</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Müşteriler</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Yeni müşteri</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Henüz müşteri yok.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Çiftlikler</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Yeni çiftlik</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Henüz çiftlik yok.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Tarlalar</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Yeni tarla</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Henüz tarla yok.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Görevler</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Yeni görev</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Henüz görev yok.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>%1 tüm içeriğiyle silinsin mi?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Adını değiştir veya sil: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Yeniden adlandır: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Tümünü sil</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Destek için ayrıntı: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Öneri: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Bu ad geçersiz.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Ad boş.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Bu ad başka bir klasörü gösterir.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Ad şunu içeremez: %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Ad, görünmeyen bir karakter içeriyor.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Ad, eksik bir karakter içeriyor.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Ad nokta veya boşlukla bitemez.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Ad boşlukla başlayamaz.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>USB bellekte bu adla bir dosya olamaz.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Ad çok uzun.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 zaten var.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 etkin ve %n dosya içeriyor.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2, %n dosya içeriyor.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 etkin.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 artık yok.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>USB bellek %2 ile %3 adlarını ayırt edemez.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Tarlalar üzerinde başka bir program çalışıyor. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Seçim kaydedilemedi.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 ne dosya ne klasör.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Dosya değiştirilmiş veya bozuk.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>%1 okunamıyor. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Dosya başka türden.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Dosya boş.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Dosyanın sonu eksik.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Dosya bozuk.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Dosya tam değil.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Dosya, yazılımın başka bir sürümünden.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Dosyada geçersiz bir değer var: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Dosyada bir ayar iki kez var: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Bu adres geçersiz: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Aygıt yok.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Buna izin yok veya başka bir program kullanıyor.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Başka bir program kullanıyor.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Okunamıyor.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Aygıt çıkarıldı.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Bu bir seri aygıt değil veya bu hızda çalışamaz.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Seri bağlantı noktası arızalı (numara %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1 bozuk veya başka türden.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1, yazılımın başka bir sürümünden.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1 bozuk.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1 WGS84 dışında koordinatlar içeriyor.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>%1 tam değil. Eksik olan: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1 alan içermiyor.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>%1 başka bir programda açık.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A ile B birbirine çok yakın veya çok uzak.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Başka bir program kilitledi.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Artık yok.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 artık yok.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>%1 yazılamıyor. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 yazılamıyor.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Ayar dosyası hatalı (numara %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1 açılamıyor. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>%1 oluşturulamıyor. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>%1 kopyalanamıyor. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>%1 yeniden adlandırılamıyor. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>%1 silinemiyor. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Disk dolu.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Disk arızalı.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Disk yalnızca okunabilir.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Buna izin yok.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Açılamıyor.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Bozuk.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Bulunamadı.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Zaten var.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Bu bir klasör.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Bu bir klasör değil.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Klasör boş değil.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Dosya çok büyük.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Çok fazla dosya açık.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Bellek yetersiz.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Orada mümkün değil.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Aygıt bağlantıyı reddediyor.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Aygıt bağlantıyı kapattı.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Bu adreste aygıt yok.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Ağa ulaşılamıyor.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Aygıt yanıt vermiyor.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Bu, başka bir yere giden bir bağlantı.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Buna giden çok fazla bağlantı var.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Yeniden adlandır</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Yeni</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 … %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>En az %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>En çok %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Bu henüz bir sayı değil.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Çok büyük.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Çok küçük.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>şimdi %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Ondalık işareti</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Artı veya eksi</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Son karakteri sil</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Temizle</translation>
    </message>
</context>
<context>
    <name>LineButtons</name>
    <message>
        <source>A</source>
        <comment>one end of the guidance line</comment>
        <translation>A</translation>
    </message>
    <message>
        <source>Set A, the first end of the line, here</source>
        <translation>Hattın ilk ucu A’yı burada belirle</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Hattın öbür ucu B’yi burada belirle</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Buraya bayrak koy</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Yeni</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 sola</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 sağa</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Ekran kilitli. Kilidi açmak için düğmeyi basılı tutun.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Kilidi aç</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Günlükler</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Olaylar</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Alıcı</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Devam et</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Henüz satır yok.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>İş genişliği</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Kılavuz hatların aralığını ve işlenen alanı belirler</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Ekipman antenden geride</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Aracın konumunun ne kadar arkasında toprağın işlendiği</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Kabin ekranı</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Yakınlaştır</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uzaklaştır</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>İlerleme yönü üstte. Kuzeyi üste çevir</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Kuzey üstte. İlerleme yönünü üste çevir</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Aracı ortala</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Tamam</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Üst satırlar</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Alt satırlar</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: varsayılana dön</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
</context>
<context>
    <name>ParameterTexts</name>
    <message>
        <source>h</source>
        <translation>sa</translation>
    </message>
    <message>
        <source>min</source>
        <translation>dk</translation>
    </message>
    <message>
        <source>s</source>
        <translation>sn</translation>
    </message>
    <message>
        <source>an absolute path that ends in &quot;/&quot; and is not &quot;/&quot;</source>
        <translation>&quot;/&quot; ile biten ve &quot;/&quot; olmayan bir tam yol</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>bir tam yol</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>küçük harflerle bir UUID, örneğin 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N veya bir tam yol</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true veya false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>UTC olarak bir saat, örneğin 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>bir renk: #rrggbb, #aarrggbb veya navy gibi bir ad</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 … %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Tam sayı değil.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>En küçük değerin altında.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>En büyük değerin üstünde.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Dosya adı böyle olamaz. Öneri: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Kabul edilmedi. Beklenen: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>%1 içermeyen bir ad</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>bir tam sayı</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>En az %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>UTC farkını operatör seçti; GPS saati bunu hesaplamaz, korur</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metrik birimler; aksi halde ABD veya İngiliz birimleri</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>birimler metrik değilse ABD ölçüleri; aksi halde İngiliz ölçüleri</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>konumlar derece, dakika ve saniyeyle; aksi halde ondalık dereceyle</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24 saatlik saat; aksi halde am ve pm ile 12 saat</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>ayın günden önce yazıldığı tarihler</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>gündüz renkleri; aksi halde gece renkleri</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>harita araçla döner; aksi halde kuzey üsttedir</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>basınç birimi</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>alanların ve alan başına normların birimi</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>kısa mesafelerin birimi: genişlikler, kaymalar</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>granül hacminin birimi</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>granül yoğunluğunun birimi</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>sıvı hacmi, debisi ve normlarının birimi</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>ekran metinlerinin dili; değişiklik için yeniden başlatma gerekir</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>ondalık nokta veya virgül; değişiklik için yeniden başlatma gerekir</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>renklerin gündüz ve gece arasında ne zaman değiştiği: yalnızca elle, gün doğumu ve gün batımında veya güneş ufkun 6 derece altındayken</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>ekranın saatini neyin ayarladığı</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>yerel saat eksi UTC, tam saatler</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>yerel saat eksi UTC, saatleri aşan dakikalar, saatlerin işaretiyle</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>ışık çubuğunun gece parlaklığı</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>ekranın gece parlaklığı</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>düğme ışıklarının gece parlaklığı</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: ekipmanlar kendi aracının klasöründe; diğer sayılar: ayrı bir klasörde</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>NMEA günlüğünün sonraki dosya numarası</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>kullanıcı günlüğünün sonraki dosya numarası</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>ekranın saati eksi UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>dahili diskin klasörü; varsayılan olarak veri klasöründe</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>çıkarılabilir diskin bağlama noktası; varsayılan olarak veri klasöründe</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>terminalin kimliği, profillerinde yazılıdır</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>alıcı cümlelerinin nereden geldiği</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>haritanın yanındaki değerler, bu sırayla</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>bir alıcının en yeni saati, alıcının görüldüğü son günden</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>güneşin renkleri en son ne zaman değiştirdiği</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>etkin görev</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>etkin sınır</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>etkin düz kılavuz hat</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>etkin pivot</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>etkin kılavuz eğri</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>optimum hatların etkin shape dosyası</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>proje hatlarının etkin shape dosyası</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>bölgelerin etkin shape dosyası</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>etkin dümenleme profili</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>etkin ekipman</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>etkin araç</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>etkin pülverizatör</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>etkin püskürtme kolu dengeleyici</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>etkin müşteri</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>etkin çiftlik</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>etkin tarla</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Ölçü sistemi</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Galon ve buşel</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Alan</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Basınç</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Kısa mesafeler</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Sıvı</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granül hacmi</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granül yoğunluğu</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Konumlar</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Yol başına norm</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Normların esası</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Dil</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Ondalık işareti</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Saat biçimi</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Tarih biçimi</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Saat dilimi elle</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Saat dilimi, saat</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Saat dilimi, dakika</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Saat eksi UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Saatin kaynağı</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Saat kaynağının başlangıcı</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>En yeni alıcı saati</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Renkler</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Gündüz ve gece</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Harita yönü</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kutucuklar</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Işık çubuğu (gece)</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Ekran (gece)</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Düğme ışıkları (gece)</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Güneşle son değişim</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Müşteri</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Çiftlik</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Tarla</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Görev</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Araç</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Ekipman</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Pülverizatör</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Kol dengeleyici</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Dümenleme profili</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Sınır</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>A-B hattı</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivot</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Eğri</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optimum hatlar</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Proje hatları</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Bölgeler</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Alıcı adresi</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Dahili disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB bellek</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Ekipman klasörü</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Sonraki NMEA günlüğü</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Sonraki kullanıcı günlüğü</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Kimlik</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Metin rengi</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Başlık</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Başlık rengi</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Arka plan</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Arka plan rengi</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Düğme</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Düğme rengi</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Düğme metni</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Düğme metni rengi</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Harita</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Harita zemininin rengi</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Izgara</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Harita ızgarasının rengi</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>İşlenen</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>İşlenen toprağın rengi</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Haritadaki araç</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Araç rengi</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Kılavuz hat</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Kılavuz hattın rengi</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Nişangâh</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Nişangâh rengi</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Dış sınır</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Tarlanın dış sınırının rengi</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>İç sınır</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Tarla içindeki sınırların rengi</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Diğer sınırlar</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Etkin olmayan sınırların rengi</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Yasak bölge</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Yasak bölgelerin rengi</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Arka plan resmi</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Arka plan resminin numarası</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>pülverizatör normlarının esas alındığı büyüklük</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>esas gidilen yol ise 100 m veya 100 yd başına sıvı normları</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>saatin ne zamandan beri bu kaynaktan alındığı</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrik</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>ABD veya İngiliz</translation>
    </message>
    <message>
        <source>US</source>
        <translation>ABD</translation>
    </message>
    <message>
        <source>English</source>
        <translation>İngiliz</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Der., dk, sn</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Derece</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 saat</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Önce ay</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Önce gün</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Gündüz</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Gece</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>İlerleme yönü</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Kuzey üstte</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Gidilen yol</translation>
    </message>
    <message>
        <source>kPa</source>
        <translation>kPa</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>Hectare</source>
        <translation>Hektar</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>Akre</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>İnç</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Fit</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>m³</source>
        <translation>m³</translation>
    </message>
    <message>
        <source>US bushel</source>
        <translation>ABD buşeli</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>BK buşeli</translation>
    </message>
    <message>
        <source>kg/L</source>
        <translation>kg/L</translation>
    </message>
    <message>
        <source>kg/m³</source>
        <translation>kg/m³</translation>
    </message>
    <message>
        <source>kg/US bu</source>
        <translation>kg/US bu</translation>
    </message>
    <message>
        <source>kg/UK bu</source>
        <translation>kg/UK bu</translation>
    </message>
    <message>
        <source>t</source>
        <translation>t</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Nokta</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Virgül</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Elle</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Gün batımı</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Alacakaranlık</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Ayarlanmadı</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operatör</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Alıcı</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Norm</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hız</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>İşlenen alan</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Kalan alan</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>İş başarısı</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Debi</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Sıcaklık</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Gidilen mesafe</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Konum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Birimler</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Normlar</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Bölge</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Şema renkleri</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Seçimler</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Depolama</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Günlükler</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, gündüz</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, gece</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Günlükler satır kaybediyor: diskleri dolu veya diske yazılamıyor.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Yer az olduğu için kayıt kapalı.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Ayar değişiklikleri henüz kaydedilmedi. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Terminalin diski dolmak üzere. Boş: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>İçe aktar</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Ekranda bu ayarlar zaten var.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Burada ve profilde değişti</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Aşağıdaki ayarların hangi değeri alacağı</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Buradaki</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Profildeki</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profiller</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Dışa aktar</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>USB bellekte profil yok.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB bellek takılı değil.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Profilin adı</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Alan</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>İş başarısı</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hız</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Mesafe</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Küçük mesafe</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Gidilen mesafe</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Rakım</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Sıcaklık</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Basınç</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Norm</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Hedef norm</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Norm ve sapma</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Küçük norm</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Debi</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Küçük debi</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Hacim</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Küçük hacim</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granül hacmi</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Ağırlık</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Alan başına ağırlık</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Alan başına ağırlık ve sapma</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Atım miktarı</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Azot</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Alan başına azot</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Alan başına tohum</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Yoğunluk</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granül yoğunluğu</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Devir başına hacim</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Devir başına ağırlık</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Debimetre</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Tekerlek sensörü</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Hız sensörü</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Enlem</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Boylam</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Süre</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Yüzde</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>hedef %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Kapalı</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Bağlanıyor</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Alıyor</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Sessiz</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Kayıp</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Bitti</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Konum yok</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Tahmini</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Elle</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simüle</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Alıcı hiçbir şey göndermiyor.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Alıcı kayboldu ve aranıyor. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Alıcı okunamıyor. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Simüle edilen tarla bitti.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Alıcının kaydı bitti.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Alıcı</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Başlat</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simülatör</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Dosya</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Ağ</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Seri</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Konum türü</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Yaş</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Uydular</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Saat (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Satırlar</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Cümleler</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Hatalı sağlama</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Bozuk satırlar</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Alıcının adresi</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Saat dilimi</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Tarih ve saat</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Elle ayarla</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Ayar ara</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Bu sözcükleri içeren ayar yok.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Birimler</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Bölge</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Renkler</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Görünüm</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Makine</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Depolama</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kutucuklar</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiller</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Tüm ayarlar</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ara</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n bayt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 kB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
</context>
<context>
    <name>StateBand</name>
    <message>
        <source>No job</source>
        <translation>Görev yok</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Alıcı: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>USB bellek takılı</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Ekranı kilitle</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Gece renkleri</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Gündüz renkleri</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Dahili disk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>USB bellek</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB bellek takılı değil.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Bellek</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Günlükler</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Tüm günlük dosyalarını USB belleğe yazar</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Dışa aktar</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Günlükleri dışa aktar</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiller</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Ayarları başka bir ekrana taşır veya USB bellekten geri getirir</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Profilleri aç</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Destek</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Günlükleri, ayarları ve sürümleri tek dosyaya yazar; müşteri, çiftlik ve tarla adları olmadan</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Yaz</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Destek dosyasını adlar olmadan yaz</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Destek, adlarla</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Aynı dosya, tüm adlar ve yerlerle</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Destek dosyasını adlarla yaz</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Görevin içinde başka öğe yok.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Bu ad zaten var.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n dosya, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Ayar henüz diske yazılamadı.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Ayarlanacak değer yok.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>Oca</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Şub</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Nis</translation>
    </message>
    <message>
        <source>May</source>
        <translation>May</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Haz</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Tem</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Ağu</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Eyl</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Eki</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Kas</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Ara</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Yeni dil, yeniden başlatınca görünür.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Yeni ondalık işareti, yeniden başlatınca görünür.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Seçim kaydedilemedi.</translation>
    </message>
</context>
<context>
    <name>TSystemSettings</name>
    <message>
        <source>J_</source>
        <translation>G_</translation>
    </message>
    <message>
        <source>B_</source>
        <translation>S_</translation>
    </message>
    <message>
        <source>L_</source>
        <translation>H_</translation>
    </message>
    <message>
        <source>P_</source>
        <translation>P_</translation>
    </message>
    <message>
        <source>C_</source>
        <translation>E_</translation>
    </message>
    <message>
        <source>O_</source>
        <translation>O_</translation>
    </message>
    <message>
        <source>No Vehicle</source>
        <translation>Araç yok</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Profil yok</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Ekipman yok</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Çekilir_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Ad boş.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>Oca</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Şub</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Nis</translation>
    </message>
    <message>
        <source>May</source>
        <translation>May</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Haz</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Tem</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Ağu</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Eyl</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Eki</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Kas</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>&apos;</source>
        <translation>&apos;</translation>
    </message>
    <message>
        <source>miles</source>
        <translation>mil</translation>
    </message>
    <message>
        <source>ha</source>
        <translation>ha</translation>
    </message>
    <message>
        <source>ac</source>
        <translation>ac</translation>
    </message>
    <message>
        <source>m/min</source>
        <translation>m/dk</translation>
    </message>
    <message>
        <source>ft/min</source>
        <translation>ft/dk</translation>
    </message>
    <message>
        <source>kph</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>ac/hr</source>
        <translation>ac/sa</translation>
    </message>
    <message>
        <source>ha/hr</source>
        <translation>ha/sa</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>gal</source>
        <translation>gal</translation>
    </message>
    <message>
        <source>mL</source>
        <translation>mL</translation>
    </message>
    <message>
        <source>fl.oz</source>
        <translation>fl.oz</translation>
    </message>
    <message>
        <source>m³</source>
        <translation>m³</translation>
    </message>
    <message>
        <source>ft³</source>
        <translation>ft³</translation>
    </message>
    <message>
        <source>t</source>
        <translation>t</translation>
    </message>
    <message>
        <source>US bu</source>
        <translation>US bu</translation>
    </message>
    <message>
        <source>UK bu</source>
        <translation>UK bu</translation>
    </message>
    <message>
        <source>L/ha</source>
        <translation>L/ha</translation>
    </message>
    <message>
        <source>L/ac</source>
        <translation>L/ac</translation>
    </message>
    <message>
        <source>mL/ha</source>
        <translation>mL/ha</translation>
    </message>
    <message>
        <source>mL/ac</source>
        <translation>mL/ac</translation>
    </message>
    <message>
        <source>gal/ha</source>
        <translation>gal/ha</translation>
    </message>
    <message>
        <source>gal/ac</source>
        <translation>gal/ac</translation>
    </message>
    <message>
        <source>gal/ha (US)</source>
        <translation>gal/ha (US)</translation>
    </message>
    <message>
        <source>gal/ac (US)</source>
        <translation>gal/ac (US)</translation>
    </message>
    <message>
        <source>fl.oz/ac</source>
        <translation>fl.oz/ac</translation>
    </message>
    <message>
        <source>fl.oz/ha</source>
        <translation>fl.oz/ha</translation>
    </message>
    <message>
        <source>fl.oz/ac (US)</source>
        <translation>fl.oz/ac (US)</translation>
    </message>
    <message>
        <source>fl.oz/ha (US)</source>
        <translation>fl.oz/ha (US)</translation>
    </message>
    <message>
        <source>m³/ha</source>
        <translation>m³/ha</translation>
    </message>
    <message>
        <source>m³/ac</source>
        <translation>m³/ac</translation>
    </message>
    <message>
        <source>ft³/ha</source>
        <translation>ft³/ha</translation>
    </message>
    <message>
        <source>ft³/ac</source>
        <translation>ft³/ac</translation>
    </message>
    <message>
        <source>t/ha</source>
        <translation>t/ha</translation>
    </message>
    <message>
        <source>t/ac</source>
        <translation>t/ac</translation>
    </message>
    <message>
        <source>L/100m</source>
        <translation>L/100m</translation>
    </message>
    <message>
        <source>gal/100yd</source>
        <translation>gal/100yd</translation>
    </message>
    <message>
        <source>gal/100yd (US)</source>
        <translation>gal/100yd (US)</translation>
    </message>
    <message>
        <source>L/min</source>
        <translation>L/dk</translation>
    </message>
    <message>
        <source>gal/min</source>
        <translation>gal/dk</translation>
    </message>
    <message>
        <source>mL/min</source>
        <translation>mL/dk</translation>
    </message>
    <message>
        <source>fl.oz/min</source>
        <translation>fl.oz/dk</translation>
    </message>
    <message>
        <source>m³/min</source>
        <translation>m³/dk</translation>
    </message>
    <message>
        <source>ft³/min</source>
        <translation>ft³/dk</translation>
    </message>
    <message>
        <source>t/min</source>
        <translation>t/dk</translation>
    </message>
    <message>
        <source>L/rev</source>
        <translation>L/dev</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/dev</translation>
    </message>
    <message>
        <source>kPa</source>
        <translation>kPa</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>m/pulse</source>
        <translation>m/darbe</translation>
    </message>
    <message>
        <source>ft/pulse</source>
        <translation>ft/darbe</translation>
    </message>
    <message>
        <source>pulses/L</source>
        <translation>darbe/L</translation>
    </message>
    <message>
        <source>pulses/gal</source>
        <translation>darbe/gal</translation>
    </message>
    <message>
        <source>pulses/mL</source>
        <translation>darbe/mL</translation>
    </message>
    <message>
        <source>pulses/fl.oz</source>
        <translation>darbe/fl.oz</translation>
    </message>
    <message>
        <source>pulses/m³</source>
        <translation>darbe/m³</translation>
    </message>
    <message>
        <source>pulses/ft³</source>
        <translation>darbe/ft³</translation>
    </message>
    <message>
        <source>pulses/t</source>
        <translation>darbe/t</translation>
    </message>
    <message>
        <source>pulses/lb</source>
        <translation>darbe/lb</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>lb</source>
        <translation>lb</translation>
    </message>
    <message>
        <source>kgN</source>
        <translation>kgN</translation>
    </message>
    <message>
        <source>lbN</source>
        <translation>lbN</translation>
    </message>
    <message>
        <source>kg/ha</source>
        <translation>kg/ha</translation>
    </message>
    <message>
        <source>kg/ac</source>
        <translation>kg/ac</translation>
    </message>
    <message>
        <source>lb/ac</source>
        <translation>lb/ac</translation>
    </message>
    <message>
        <source>lb/ha</source>
        <translation>lb/ha</translation>
    </message>
    <message>
        <source>g/ha</source>
        <translation>g/ha</translation>
    </message>
    <message>
        <source>kgN/ha</source>
        <translation>kgN/ha</translation>
    </message>
    <message>
        <source>kgN/ac</source>
        <translation>kgN/ac</translation>
    </message>
    <message>
        <source>lbN/ac</source>
        <translation>lbN/ac</translation>
    </message>
    <message>
        <source>lbN/ha</source>
        <translation>lbN/ha</translation>
    </message>
    <message>
        <source>kg/min</source>
        <translation>kg/dk</translation>
    </message>
    <message>
        <source>lb/min</source>
        <translation>lb/dk</translation>
    </message>
    <message>
        <source>kgN/min</source>
        <translation>kgN/dk</translation>
    </message>
    <message>
        <source>lbN/min</source>
        <translation>lbN/dk</translation>
    </message>
    <message>
        <source>kg/rev</source>
        <translation>kg/dev</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/dev</translation>
    </message>
    <message>
        <source>kg/L</source>
        <translation>kg/L</translation>
    </message>
    <message>
        <source>lb/gal</source>
        <translation>lb/gal</translation>
    </message>
    <message>
        <source>kg/m³</source>
        <translation>kg/m³</translation>
    </message>
    <message>
        <source>lb/ft³</source>
        <translation>lb/ft³</translation>
    </message>
    <message>
        <source>kg/US bu</source>
        <translation>kg/US bu</translation>
    </message>
    <message>
        <source>kg/UK bu</source>
        <translation>kg/UK bu</translation>
    </message>
    <message>
        <source>lb/US bu</source>
        <translation>lb/US bu</translation>
    </message>
    <message>
        <source>lb/UK bu</source>
        <translation>lb/UK bu</translation>
    </message>
    <message>
        <source>pulses/kgN</source>
        <translation>darbe/kgN</translation>
    </message>
    <message>
        <source>pulses/lbN</source>
        <translation>darbe/lbN</translation>
    </message>
    <message>
        <source>KS/ha</source>
        <translation>bin/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>bin/ac</translation>
    </message>
    <message>
        <source>s</source>
        <translation>sn</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>min</source>
        <translation>dk</translation>
    </message>
    <message>
        <source>hrs</source>
        <translation>sa</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>dev/dk</translation>
    </message>
    <message>
        <source>A</source>
        <comment>Ampere Abbreviation</comment>
        <translation>A</translation>
    </message>
    <message>
        <source>W</source>
        <comment>Watt Abbreviation</comment>
        <translation>W</translation>
    </message>
    <message>
        <source>mW</source>
        <comment>milliWatt Abbreviation</comment>
        <translation>mW</translation>
    </message>
</context>
<context>
    <name>TUserLogAccessor</name>
    <message>
        <source>Critical</source>
        <translation>Kritik</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Önemsiz</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Bu iş genişliği geçersiz.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Bu görevin bir dosyası kullanılamıyor. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>İşlenen alan verisi eksikti ve bir kısmı atlandı: şerit %1, bayt %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Bayrak dosyası bozuk; yeni bayraklar kaydedilmiyor.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Bir dosya kaydedilemedi. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Ekipman dosyası kullanılamıyor. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Hat yok.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Hattın adı yok.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Kılavuz hat kullanılamıyor. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Görev seçilmedi</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Görev seçilmedi: işlenen alan kaydedilmiyor.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Bu görevin işlenen alanı kullanılamıyor: işlenen alan kaydedilmiyor.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>İşlenen alan kaydedilemiyor, şeritler kayboluyor: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>İşlenen alan, kaydedilebilene kadar bellekte tutuluyor. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Görev hâlâ okunuyor.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Kutucuklar</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Norm</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Hız</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Alan</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Kalan</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>İş başarısı</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Debi</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Basınç</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Sıc.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Yol</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Konum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Saat</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Varsayılan seçime dön</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: öne al</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Görünür</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Gizli</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Hiçbir şey içe aktarılmadı: bazı ayarlar hem burada hem profilde değişti.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>USB bellek takılı değil.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>USB bellek, her şey yazılmadan çıkarıldı.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>USB belleğe sonuna kadar yazılamadı.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>%1 klasörü oluşturulamıyor.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>%1 dosyası yazılamıyor.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Günlükler USB bellekte (dosya: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Profil kullanılamıyor. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Hiçbir şey içe aktarılmadı. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Bu ekran</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Başka bir ekran</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profil USB bellekte değil. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profil USB bellekte: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Destek dosyası USB bellekte değil. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Destek dosyası USB bellekte: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profil içe aktarıldı (değişen ayar: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Kullanılamıyor.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Okunuyor</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Yazılıyor</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Bitene kadar USB belleği çıkarmayın.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Konum bekleniyor</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Harita</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>Çalışıyor</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Çalışmıyor</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Çalışıyor. Ekipmanı kapat</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Çalışmıyor. Ekipmanı aç</translation>
    </message>
</context>
</TS>
