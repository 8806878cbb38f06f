<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR" sourcelanguage="en">
<context>
    <name>AboutScreen</name>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>A craps table to play at, and to test betting systems on.</source>
        <translation>Oynamak ve bahis sistemlerini denemek için bir craps masası.</translation>
    </message>
    <message>
        <source>About Tessaryn</source>
        <translation>Tessaryn hakkında</translation>
    </message>
    <message>
        <source>Programs:  %1
Data:  %2</source>
        <translation>Programlar:  %1
Veriler:  %2</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3: see LICENSE.</source>
        <translation>GNU General Public License, sürüm 3 altında özgür yazılım: LICENSE dosyasına bakın.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Dil:</translation>
    </message>
</context>
<context>
    <name>BankrollGraph</name>
    <message>
        <source>rolls</source>
        <translation>atış</translation>
    </message>
    <message>
        <source>No rolls</source>
        <translation>Atış yok</translation>
    </message>
    <message>
        <source>Rolls %1 to %2</source>
        <translation>Atış %1 - %2</translation>
    </message>
    <message>
        <source>High:  %1  Current:  %2  Low:  %3</source>
        <translation>Yüksek:  %1  Şimdi:  %2  Düşük:  %3</translation>
    </message>
    <message>
        <source>%1 roll avg</source>
        <translation>%1 atış ort.</translation>
    </message>
    <message>
        <source>All rolls avg</source>
        <translation>Tüm atışların ort.</translation>
    </message>
</context>
<context>
    <name>BetButtons</name>
    <message>
        <source>Undo bet</source>
        <translation>Bahsi geri al</translation>
    </message>
    <message>
        <source>Repeat bets</source>
        <translation>Yinele</translation>
    </message>
    <message>
        <source>Full odds</source>
        <translation>Tam odds</translation>
    </message>
</context>
<context>
    <name>BetFacts</name>
    <message>
        <source>one-roll bet</source>
        <translation>tek atışlık bahis</translation>
    </message>
    <message>
        <source>stays up until it is decided</source>
        <translation>sonuçlanana dek kalır</translation>
    </message>
    <message>
        <source>a contract: it stays up until it is decided</source>
        <translation>bağlı: sonuçlanana dek kalır</translation>
    </message>
    <message>
        <source>on the line: decided by the come-out or by the point</source>
        <translation>çizgide: come-out ya da point ile sonuçlanır</translation>
    </message>
    <message>
        <source>odds behind %1</source>
        <translation>%1 arkasında odds</translation>
    </message>
    <message>
        <source>goes on over several rolls</source>
        <translation>birkaç atış sürer</translation>
    </message>
    <message>
        <source>%1 before 7</source>
        <translation>7&apos;den önce %1</translation>
    </message>
    <message>
        <source>7 before %1</source>
        <translation>%1&apos;den önce 7</translation>
    </message>
    <message>
        <source>7 or 11 on the come-out, then the point before 7</source>
        <translation>come-out&apos;ta 7 ya da 11, sonra 7&apos;den önce point</translation>
    </message>
    <message>
        <source>2, 3 or 12 on the come-out, then 7 before the point</source>
        <translation>come-out&apos;ta 2, 3 ya da 12, sonra point&apos;ten önce 7</translation>
    </message>
    <message>
        <source>7 or 11 on the next roll, then its number before 7</source>
        <translation>sonraki atışta 7 ya da 11, sonra 7&apos;den önce sayısı</translation>
    </message>
    <message>
        <source>2, 3 or 12 on the next roll, then 7 before its number</source>
        <translation>sonraki atışta 2, 3 ya da 12, sonra sayısından önce 7</translation>
    </message>
    <message>
        <source>%1 or 3 on the come-out, then 7 before the point; %2 is barred</source>
        <translation>come-out&apos;ta %1 ya da 3, sonra point&apos;ten önce 7; %2 yasak</translation>
    </message>
    <message>
        <source>%1 or 3 on the next roll, then 7 before its number; %2 is barred</source>
        <translation>sonraki atışta %1 ya da 3, sonra sayısından önce 7; %2 yasak</translation>
    </message>
    <message>
        <source>the point before 7</source>
        <translation>7&apos;den önce point</translation>
    </message>
    <message>
        <source>7 before the point</source>
        <translation>point&apos;ten önce 7</translation>
    </message>
    <message>
        <source>%1 on the next roll</source>
        <translation>sonraki atışta %1</translation>
    </message>
    <message>
        <source>any other roll</source>
        <translation>başka her atış</translation>
    </message>
    <message>
        <source>any other roll, but not on %1</source>
        <translation>başka her atış, ama %1 değil</translation>
    </message>
    <message>
        <source>%1 as a pair, before 7 and before any other %1</source>
        <translation>çift olarak %1, 7&apos;den ve başka her %1&apos;den önce</translation>
    </message>
    <message>
        <source>7, or %1 that is no pair</source>
        <translation>7, ya da çift olmayan %1</translation>
    </message>
    <message>
        <source>all of %1 before 7</source>
        <translation>7&apos;den önce hepsi: %1</translation>
    </message>
    <message>
        <source>7 before the last of them</source>
        <translation>sonuncusundan önce 7</translation>
    </message>
    <message>
        <source>four rolls without a 7</source>
        <translation>7 gelmeden dört atış</translation>
    </message>
    <message>
        <source>7 within the four rolls</source>
        <translation>dört atış içinde 7</translation>
    </message>
    <message>
        <source>a point, and 7 on the very next roll</source>
        <translation>bir point, ve hemen sonraki atışta 7</translation>
    </message>
    <message>
        <source>7 on the come-out, or a point and 7 on the very next roll</source>
        <translation>come-out&apos;ta 7, ya da bir point ve hemen sonraki atışta 7</translation>
    </message>
    <message>
        <source>anything else</source>
        <translation>başka her şey</translation>
    </message>
    <message>
        <source>%1 points or more, made before the seven-out</source>
        <translation>seven-out&apos;tan önce %1 ya da daha çok point</translation>
    </message>
    <message>
        <source>%1 passes or more before the seven-out</source>
        <translation>seven-out&apos;tan önce %1 ya da daha çok pass</translation>
    </message>
    <message>
        <source>%1 different points or more, made before the seven-out</source>
        <translation>seven-out&apos;tan önce %1 ya da daha çok farklı point</translation>
    </message>
    <message>
        <source>a seven-out with fewer</source>
        <translation>daha azıyla seven-out</translation>
    </message>
    <message>
        <source>half each as Any Craps and Eleven</source>
        <translation>yarısı Any Craps, yarısı Eleven</translation>
    </message>
    <message>
        <source>a quarter each as Two, Three, Eleven and Twelve</source>
        <translation>Two, Three, Eleven ve Twelve&apos;e dörtte birer</translation>
    </message>
    <message>
        <source>a fifth each as Two, Three, Seven, Eleven and Twelve</source>
        <translation>Two, Three, Seven, Eleven ve Twelve&apos;e beşte birer</translation>
    </message>
    <message>
        <source>%1% of the bet, charged as it is made</source>
        <translation>bahsin yüzde %1 kadarı, konurken alınır</translation>
    </message>
    <message>
        <source>%1% of the bet, charged when it wins</source>
        <translation>bahsin yüzde %1 kadarı, kazanınca alınır</translation>
    </message>
    <message>
        <source>%1% of the win, charged as it is made</source>
        <translation>kazancın yüzde %1 kadarı, konurken alınır</translation>
    </message>
    <message>
        <source>%1% of the win, charged when it wins</source>
        <translation>kazancın yüzde %1 kadarı, kazanınca alınır</translation>
    </message>
    <message>
        <source>vig: %1</source>
        <translation>vig: %1</translation>
    </message>
    <message>
        <source>pays %1</source>
        <translation>%1 öder</translation>
    </message>
    <message>
        <source>minimum %1</source>
        <translation>en az %1</translation>
    </message>
    <message>
        <source>may still be bet: %1</source>
        <translation>daha konabilir: %1</translation>
    </message>
    <message>
        <source>edge %1%</source>
        <translation>kasa payı yüzde %1</translation>
    </message>
    <message>
        <source>edge %1% a roll</source>
        <translation>kasa payı atış başına yüzde %1</translation>
    </message>
    <message>
        <source>not now: %1</source>
        <translation>şimdi olmaz: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Wins on: %1</source>
        <translation>Kazanır: %1</translation>
    </message>
    <message>
        <source>Loses on: %1</source>
        <translation>Kaybeder: %1</translation>
    </message>
    <message>
        <source>Pays: %1</source>
        <translation>Öder: %1</translation>
    </message>
    <message>
        <source>Next roll: wins %1, loses %2 in 36</source>
        <translation>Sonraki atış: 36&apos;da %1 kazanır, %2 kaybeder</translation>
    </message>
    <message>
        <source>Off on the next roll; working it would win %1, lose %2 in 36</source>
        <translation>Sonraki atışta OFF; çalışsa 36&apos;da %1 kazanır, %2 kaybederdi</translation>
    </message>
    <message>
        <source>House edge: %1% of the bet</source>
        <translation>Kasa payı: bahsin yüzde %1 kadarı</translation>
    </message>
    <message>
        <source>House edge: %1% of the bet, a roll</source>
        <translation>Kasa payı: atış başına bahsin yüzde %1 kadarı</translation>
    </message>
    <message>
        <source>The dice in force never decide it</source>
        <translation>Geçerli zarlar onu hiç sonuçlandırmaz</translation>
    </message>
    <message>
        <source>Decided after %1 rolls on average</source>
        <translation>Ortalama %1 atışta sonuçlanır</translation>
    </message>
    <message>
        <source>Vig: %1</source>
        <translation>Vig: %1</translation>
    </message>
</context>
<context>
    <name>Board</name>
    <message>
        <source>Next click: call a bet ON. A right click ends this</source>
        <translation>Sonraki tıklama: bahsi ON ilan et. Sağ tıklama bitirir</translation>
    </message>
    <message>
        <source>Next click: call a bet OFF. A right click ends this</source>
        <translation>Sonraki tıklama: bahsi OFF ilan et. Sağ tıklama bitirir</translation>
    </message>
    <message>
        <source>Next click: buy a Place bet. A right click ends this</source>
        <translation>Sonraki tıklama: Place bahsini satın al. Sağ tıklama bitirir</translation>
    </message>
    <message>
        <source>Next click: remove a bet. A right click ends this</source>
        <translation>Sonraki tıklama: bir bahsi kaldır. Sağ tıklama bitirir</translation>
    </message>
    <message>
        <source>Next click: take a bet to move it. A right click ends this</source>
        <translation>Sonraki tıklama: taşımak için bir bahis al. Sağ tıklama bitirir</translation>
    </message>
    <message>
        <source>Next click: put the bet down. A right click ends this</source>
        <translation>Sonraki tıklama: bahsi bırak. Sağ tıklama bitirir</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), point stays %5.</source>
        <translation>Atış %1: %2 (%3-%4), point %5 kalır.</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), the point is %2.</source>
        <translation>Atış %1: %2 (%3-%4), point %2.</translation>
    </message>
    <message>
        <source>point</source>
        <translation>point</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), point made.</source>
        <translation>Atış %1: %2 (%3-%4), point yapıldı.</translation>
    </message>
    <message>
        <source>point made</source>
        <translation>point yapıldı</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), seven-out.</source>
        <translation>Atış %1: %2 (%3-%4), seven-out.</translation>
    </message>
    <message>
        <source>seven-out</source>
        <translation>seven-out</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), natural.</source>
        <translation>Atış %1: %2 (%3-%4), natural.</translation>
    </message>
    <message>
        <source>natural</source>
        <translation>natural</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), craps.</source>
        <translation>Atış %1: %2 (%3-%4), craps.</translation>
    </message>
    <message>
        <source>craps</source>
        <translation>craps</translation>
    </message>
    <message>
        <source>hard</source>
        <translation>hard</translation>
    </message>
    <message>
        <source>easy</source>
        <translation>easy</translation>
    </message>
    <message>
        <source>TWO</source>
        <translation>İKİ</translation>
    </message>
    <message>
        <source>THREE</source>
        <translation>ÜÇ</translation>
    </message>
    <message>
        <source>FOUR</source>
        <translation>DÖRT</translation>
    </message>
    <message>
        <source>FIVE</source>
        <translation>BEŞ</translation>
    </message>
    <message>
        <source>SIX</source>
        <translation>ALTI</translation>
    </message>
    <message>
        <source>SEVEN</source>
        <translation>YEDİ</translation>
    </message>
    <message>
        <source>EIGHT</source>
        <translation>SEKİZ</translation>
    </message>
    <message>
        <source>NINE</source>
        <translation>DOKUZ</translation>
    </message>
    <message>
        <source>TEN</source>
        <translation>ON</translation>
    </message>
    <message>
        <source>ELEVEN</source>
        <translation>ON BİR</translation>
    </message>
    <message>
        <source>TWELVE</source>
        <translation>ON İKİ</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Hand %1</source>
        <translation>El %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 atış</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 points made</source>
        <translation>
            <numerusform>%1 point yapıldı</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>&amp;Play</source>
        <translation>&amp;Oyna</translation>
    </message>
    <message>
        <source>&amp;Watch a system</source>
        <translation>Bir &amp;sistemi izle</translation>
    </message>
    <message>
        <source>&amp;Study results</source>
        <translation>So&amp;nuçları incele</translation>
    </message>
    <message>
        <source>&amp;Float all</source>
        <translation>Tümünü &amp;ayır</translation>
    </message>
    <message>
        <source>&amp;Close all instruments</source>
        <translation>Tüm araçları &amp;kapat</translation>
    </message>
    <message>
        <source>&amp;Key in bet amounts</source>
        <translation>&amp;Bahis tutarlarını yaz</translation>
    </message>
    <message>
        <source>&amp;Buy a Place bet</source>
        <translation>&amp;Place bahsini satın al</translation>
    </message>
    <message>
        <source>Call a bet &amp;ON</source>
        <translation>Bahsi O&amp;N ilan et</translation>
    </message>
    <message>
        <source>Call a bet O&amp;FF</source>
        <translation>Bahsi O&amp;FF ilan et</translation>
    </message>
    <message>
        <source>Call all bets O&amp;N</source>
        <translation>&amp;Tüm bahisleri ON ilan et</translation>
    </message>
    <message>
        <source>&amp;Call all bets OFF</source>
        <translation>T&amp;üm bahisleri OFF ilan et</translation>
    </message>
    <message>
        <source>&amp;Take full odds</source>
        <translation>Tam &amp;odds al</translation>
    </message>
    <message>
        <source>&amp;Lay full odds</source>
        <translation>Tam odds &amp;ver</translation>
    </message>
    <message>
        <source>&amp;Remove a bet</source>
        <translation>Bir bahsi &amp;kaldır</translation>
    </message>
    <message>
        <source>&amp;Move a bet</source>
        <translation>Bir bahsi t&amp;aşı</translation>
    </message>
    <message>
        <source>Remove &amp;all bets</source>
        <translation>Tüm bahisl&amp;eri kaldır</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Oyun</translation>
    </message>
    <message>
        <source>&amp;Players</source>
        <translation>O&amp;yuncular</translation>
    </message>
    <message>
        <source>&amp;Bets</source>
        <translation>&amp;Bahisler</translation>
    </message>
    <message>
        <source>&amp;Dice</source>
        <translation>&amp;Zarlar</translation>
    </message>
    <message>
        <source>A&amp;uto-Bet</source>
        <translation>A&amp;uto-Bet</translation>
    </message>
    <message>
        <source>Stat&amp;istics</source>
        <translation>&amp;İstatistik</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Görünüm</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ya&amp;rdım</translation>
    </message>
    <message>
        <source>&amp;Roll the dice</source>
        <translation>&amp;Zar at</translation>
    </message>
    <message>
        <source>&amp;Pass the dice</source>
        <translation>Zarları &amp;devret</translation>
    </message>
    <message>
        <source>Roll your &amp;own numbers</source>
        <translation>Kendi &amp;sayılarını at</translation>
    </message>
    <message>
        <source>Start &amp;Turbo-Roll</source>
        <translation>&amp;Turbo-Roll başlat</translation>
    </message>
    <message>
        <source>Set Auto-Roll time &amp;delay ...</source>
        <translation>Auto-Roll &amp;gecikmesi ...</translation>
    </message>
    <message>
        <source>Set Auto-&amp;Stop ...</source>
        <translation>Otomatik d&amp;urma ...</translation>
    </message>
    <message>
        <source>Open pro&amp;bability file ...</source>
        <translation>&amp;Olasılık dosyası aç ...</translation>
    </message>
    <message>
        <source>Per&amp;centage dice</source>
        <translation>&amp;Yüzdeli zarlar</translation>
    </message>
    <message>
        <source>Pla&amp;y a dice roll file ...</source>
        <translation>Z&amp;ar dosyası oynat ...</translation>
    </message>
    <message>
        <source>R&amp;ecord a dice roll file ...</source>
        <translation>Zar dosyasına &amp;kaydet ...</translation>
    </message>
    <message>
        <source>C&amp;lose the dice roll file</source>
        <translation>Zar dosyasını ka&amp;pat</translation>
    </message>
    <message>
        <source>Dice roll &amp;files</source>
        <translation>Zar dosya&amp;ları</translation>
    </message>
    <message>
        <source>Percentage dice ed&amp;itor</source>
        <translation>Yüzdeli zar düz&amp;enleyici</translation>
    </message>
    <message>
        <source>Stop t&amp;he dice roll file</source>
        <translation>Zar dosyasını durdu&amp;r</translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation>Ye&amp;ni ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Aç ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Kaydet</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>&amp;Farklı kaydet ...</translation>
    </message>
    <message>
        <source>&amp;Recent games</source>
        <translation>Son &amp;oyunlar</translation>
    </message>
    <message>
        <source>&amp;Files in use ...</source>
        <translation>Kullanılan &amp;dosyalar ...</translation>
    </message>
    <message>
        <source>So&amp;und</source>
        <translation>Se&amp;s</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>A&amp;yarlar</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Çıkış</translation>
    </message>
    <message>
        <source>&amp;Keys and mouse</source>
        <translation>&amp;Tuşlar ve fare</translation>
    </message>
    <message>
        <source>&amp;About Tessaryn</source>
        <translation>Tessaryn &amp;hakkında</translation>
    </message>
    <message>
        <source>&amp;Add ...</source>
        <translation>&amp;Ekle ...</translation>
    </message>
    <message>
        <source>&amp;Rename ...</source>
        <translation>&amp;Adını değiştir ...</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Yerini değiştir</translation>
    </message>
    <message>
        <source>R&amp;emove ...</source>
        <translation>Çı&amp;kar ...</translation>
    </message>
    <message>
        <source>A&amp;TM ...</source>
        <translation>&amp;Bankamatik ...</translation>
    </message>
    <message>
        <source>Auto-&amp;Play ...</source>
        <translation>Auto-&amp;Play ...</translation>
    </message>
    <message>
        <source>&amp;Open script ...</source>
        <translation>B&amp;etik aç ...</translation>
    </message>
    <message>
        <source>&amp;Active</source>
        <translation>Et&amp;kin</translation>
    </message>
    <message>
        <source>&amp;Initialize</source>
        <translation>&amp;Baştan başlat</translation>
    </message>
    <message>
        <source>&amp;Stop auto-betting</source>
        <translation>Auto-Bet&apos;i &amp;durdur</translation>
    </message>
    <message>
        <source>Assign a &amp;hot-key ...</source>
        <translation>Kısayol &amp;tuşu ata ...</translation>
    </message>
    <message>
        <source>Auto-Bet &amp;workshop</source>
        <translation>Auto-Bet &amp;atölyesi</translation>
    </message>
    <message>
        <source>Hot-&amp;keys</source>
        <translation>Kısayol t&amp;uşları</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Özet</translation>
    </message>
    <message>
        <source>&amp;Hands</source>
        <translation>&amp;Eller</translation>
    </message>
    <message>
        <source>Bet &amp;results</source>
        <translation>Bahis &amp;sonuçları</translation>
    </message>
    <message>
        <source>Bet &amp;trends</source>
        <translation>Bahis e&amp;ğilimleri</translation>
    </message>
    <message>
        <source>R&amp;oll totals</source>
        <translation>Atış &amp;toplamları</translation>
    </message>
    <message>
        <source>Roll &amp;frequencies</source>
        <translation>&amp;Atış sıklıkları</translation>
    </message>
    <message>
        <source>&amp;Bankroll graph</source>
        <translation>&amp;Bankroll grafiği</translation>
    </message>
    <message>
        <source>&amp;CheckStacks</source>
        <translation>&amp;CheckStacks</translation>
    </message>
    <message>
        <source>Sessions &amp;Log</source>
        <translation>Oturum &amp;günlüğü</translation>
    </message>
    <message>
        <source>&amp;Events Log</source>
        <translation>&amp;Olay günlüğü</translation>
    </message>
    <message>
        <source>L&amp;aboratory</source>
        <translation>&amp;Laboratuvar</translation>
    </message>
    <message>
        <source>View %1</source>
        <translation>Görünüm %1</translation>
    </message>
    <message>
        <source>Bet &amp;amounts</source>
        <translation>&amp;Bahis tutarları</translation>
    </message>
    <message>
        <source>&amp;Flash the bets</source>
        <translation>Bahisl&amp;eri yanıp söndür</translation>
    </message>
    <message>
        <source>&amp;Proposition bets</source>
        <translation>&amp;Proposition bahisleri</translation>
    </message>
    <message>
        <source>&amp;Move, zoom and rotate</source>
        <translation>&amp;Taşı, yakınlaştır ve döndür</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Yakınlaştır</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>&amp;Uzaklaştır</translation>
    </message>
    <message>
        <source>&amp;Rotate by 30 degrees</source>
        <translation>&amp;30 derece döndür</translation>
    </message>
    <message>
        <source>&amp;Whole table</source>
        <translation>Tüm &amp;masa</translation>
    </message>
    <message>
        <source>&amp;Left end</source>
        <translation>&amp;Sol uç</translation>
    </message>
    <message>
        <source>Ri&amp;ght end</source>
        <translation>S&amp;ağ uç</translation>
    </message>
    <message>
        <source>R&amp;estore view</source>
        <translation>&amp;Görünümü geri getir</translation>
    </message>
    <message>
        <source>&amp;Save view</source>
        <translation>Gö&amp;rünümü sakla</translation>
    </message>
    <message>
        <source>Arra&amp;nge</source>
        <translation>Dü&amp;zen</translation>
    </message>
    <message>
        <source>Lang&amp;uage</source>
        <translation>&amp;Dil</translation>
    </message>
    <message>
        <source>&amp;Undo bet</source>
        <translation>Bahsi &amp;geri al</translation>
    </message>
    <message>
        <source>R&amp;edo bet</source>
        <translation>Bahsi &amp;yinele</translation>
    </message>
    <message>
        <source>Re&amp;peat bets</source>
        <translation>Bahi&amp;sleri tekrarla</translation>
    </message>
    <message>
        <source>Full o&amp;dds</source>
        <translation>Ta&amp;m odds</translation>
    </message>
    <message>
        <source>&amp;Help for this screen</source>
        <translation>Bu ekranın &amp;yardımı</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;İçindekiler</translation>
    </message>
    <message>
        <source>&amp;Search the help</source>
        <translation>Yardımda &amp;ara</translation>
    </message>
    <message>
        <source>&amp;Settle each roll on one sheet</source>
        <translation>&amp;Her atışı tek sayfada sonuçlandır</translation>
    </message>
    <message>
        <source>L&amp;uck</source>
        <translation>&amp;Şans</translation>
    </message>
</context>
<context>
    <name>Core</name>
    <message>
        <source>Auto select</source>
        <translation>Otomatik seçim</translation>
    </message>
    <message>
        <source>X Flat - No Push</source>
        <translation>X düz - push yok</translation>
    </message>
    <message>
        <source>X Flat w/ Minor Push</source>
        <translation>X düz, küçük push ile</translation>
    </message>
    <message>
        <source>X Flat w/ Color Push</source>
        <translation>X düz, renk push ile</translation>
    </message>
    <message>
        <source>X Flat - Single Odds</source>
        <translation>X düz - tek odds</translation>
    </message>
    <message>
        <source>Flat - Single Odds X</source>
        <translation>Düz - tek odds X</translation>
    </message>
    <message>
        <source>Rounded normally</source>
        <translation>Normal yuvarlama</translation>
    </message>
    <message>
        <source>Rounded down</source>
        <translation>Aşağı yuvarlama</translation>
    </message>
    <message>
        <source>Rounded up</source>
        <translation>Yukarı yuvarlama</translation>
    </message>
    <message>
        <source> Charge winning Buy bets only</source>
        <translation> Yalnız kazanan Buy bahislerinden al</translation>
    </message>
    <message>
        <source> Charge all Buy bets</source>
        <translation> Tüm Buy bahislerinden al</translation>
    </message>
    <message>
        <source> Charge winning Lay bets only</source>
        <translation> Yalnız kazanan Lay bahislerinden al</translation>
    </message>
    <message>
        <source> Charge all Lay bets</source>
        <translation> Tüm Lay bahislerinden al</translation>
    </message>
    <message>
        <source>No bets required to shoot</source>
        <translation>Atmak için bahis gerekmez</translation>
    </message>
    <message>
        <source>Line bet required to shoot</source>
        <translation>Atmak için çizgi bahsi gerekir</translation>
    </message>
    <message>
        <source>Any bet required to shoot</source>
        <translation>Atmak için bir bahis gerekir</translation>
    </message>
    <message>
        <source> Actions not allowed</source>
        <translation> İzin verilmeyen işlemler</translation>
    </message>
    <message>
        <source> Betting limits reached</source>
        <translation> Ulaşılan bahis sınırları</translation>
    </message>
    <message>
        <source> Charges and/or change</source>
        <translation> Kesintiler ve para üstü</translation>
    </message>
    <message>
        <source> Auto-bet messages normal play</source>
        <translation> Normal oyunda Auto-Bet iletileri</translation>
    </message>
    <message>
        <source> Auto-bet messages turbo-roll</source>
        <translation> Turbo-Roll&apos;da Auto-Bet iletileri</translation>
    </message>
    <message>
        <source>Don&apos;t show any info</source>
        <translation>Bilgi gösterme</translation>
    </message>
    <message>
        <source>Show amounts only</source>
        <translation>Yalnız tutarları göster</translation>
    </message>
    <message>
        <source>Show names only</source>
        <translation>Yalnız adları göster</translation>
    </message>
    <message>
        <source>Show names and amounts only</source>
        <translation>Yalnız adları ve tutarları göster</translation>
    </message>
    <message>
        <source>Show all info</source>
        <translation>Tüm bilgiyi göster</translation>
    </message>
    <message>
        <source> Theoretical house vig</source>
        <translation> Kuramsal kasa payı</translation>
    </message>
    <message>
        <source> Total comp action</source>
        <translation> Toplam comp hacmi</translation>
    </message>
    <message>
        <source> Average comp action and time</source>
        <translation> Ortalama comp hacmi ve süre</translation>
    </message>
    <message>
        <source> Seed normally</source>
        <translation> Normal tohum</translation>
    </message>
    <message>
        <source> User seed</source>
        <translation> Kullanıcı tohumu</translation>
    </message>
    <message>
        <source> Manual</source>
        <translation> Elle</translation>
    </message>
    <message>
        <source> Auto w/ minor correction</source>
        <translation> Otomatik, küçük düzeltmeyle</translation>
    </message>
    <message>
        <source> Auto w/ color correction</source>
        <translation> Otomatik, renk düzeltmesiyle</translation>
    </message>
    <message>
        <source> Thrown</source>
        <translation> Atılarak</translation>
    </message>
    <message>
        <source> Without motion</source>
        <translation> Hareketsiz</translation>
    </message>
    <message>
        <source> Thrown quickly</source>
        <translation> Hızlı atılarak</translation>
    </message>
    <message>
        <source> Carry the bankroll forward</source>
        <translation> Bankroll&apos;u taşı</translation>
    </message>
    <message>
        <source> Begin with this amount</source>
        <translation> Bu tutarla başla</translation>
    </message>
    <message>
        <source> Ask for the amount</source>
        <translation> Tutarı sor</translation>
    </message>
    <message>
        <source>0 by the change, 1 up, 2 down</source>
        <translation>0 para üstüne göre, 1 yukarı, 2 aşağı</translation>
    </message>
    <message>
        <source>minimum of bets 1 to 51</source>
        <translation>1 - 51 bahislerinin en azı</translation>
    </message>
    <message>
        <source>minimum of bets 52 to 93</source>
        <translation>52 - 93 bahislerinin en azı</translation>
    </message>
    <message>
        <source>table maximum</source>
        <translation>masanın en çoğu</translation>
    </message>
    <message>
        <source>most a proposition may pay</source>
        <translation>bir proposition&apos;ın en çok ödemesi</translation>
    </message>
    <message>
        <source>ceiling of an odds bet</source>
        <translation>odds bahsinin tavanı</translation>
    </message>
    <message>
        <source>ceiling of the Fire bet</source>
        <translation>Fire bahsinin tavanı</translation>
    </message>
    <message>
        <source>odds multiple on 4 and 10</source>
        <translation>4 ve 10&apos;da odds katı</translation>
    </message>
    <message>
        <source>odds multiple on 5 and 9</source>
        <translation>5 ve 9&apos;da odds katı</translation>
    </message>
    <message>
        <source>odds multiple on 6 and 8</source>
        <translation>6 ve 8&apos;de odds katı</translation>
    </message>
    <message>
        <source>0 auto select, 1 to 5 the method</source>
        <translation>0 otomatik seçim, 1 - 5 yöntem</translation>
    </message>
    <message>
        <source>12 or 2, barred on the don&apos;t side</source>
        <translation>12 ya da 2, don&apos;t tarafında yasak</translation>
    </message>
    <message>
        <source>Put bets</source>
        <translation>Put bahisleri</translation>
    </message>
    <message>
        <source>0 none, 1 line bet, 2 any bet needed to shoot</source>
        <translation>0 yok, 1 çizgi bahsi, 2 atmak için herhangi bir bahis</translation>
    </message>
    <message>
        <source>Big 6 and Big 8</source>
        <translation>Big 6 ve Big 8</translation>
    </message>
    <message>
        <source>Midway bet</source>
        <translation>Midway bahsi</translation>
    </message>
    <message>
        <source>special propositions, bets 84 to 89</source>
        <translation>özel proposition&apos;lar, 84 - 89 bahisleri</translation>
    </message>
    <message>
        <source>Fire bet</source>
        <translation>Fire bahsi</translation>
    </message>
    <message>
        <source>contract bets go back at a new session</source>
        <translation>bağlı bahisler yeni oturumda geri verilir</translation>
    </message>
    <message>
        <source>what the Field pays; Own once a row of it is another</source>
        <translation>Field&apos;ın ödediği; bir satırı değişince Own</translation>
    </message>
    <message>
        <source>a fraction, or with % a percentage</source>
        <translation>bir kesir, ya da % ile bir yüzde</translation>
    </message>
    <message>
        <source>0 normally, 1 down, 2 up</source>
        <translation>0 normal, 1 aşağı, 2 yukarı</translation>
    </message>
    <message>
        <source>charge all Buy bets</source>
        <translation>tüm Buy bahislerinden al</translation>
    </message>
    <message>
        <source>charge all Lay bets</source>
        <translation>tüm Lay bahislerinden al</translation>
    </message>
    <message>
        <source>rolls per hour</source>
        <translation>saatte atış</translation>
    </message>
    <message>
        <source>0 fastest to 11; 12 Auto-Roll</source>
        <translation>0 en hızlı - 11; 12 Auto-Roll</translation>
    </message>
    <message>
        <source>seconds between Auto-Rolls</source>
        <translation>Auto-Roll&apos;lar arası saniye</translation>
    </message>
    <message>
        <source>rolls, 0 never</source>
        <translation>atış, 0 hiç</translation>
    </message>
    <message>
        <source>offered to a new player</source>
        <translation>yeni oyuncuya önerilen</translation>
    </message>
    <message>
        <source>the ATM works</source>
        <translation>bankamatik çalışır</translation>
    </message>
    <message>
        <source>amount of an ATM action that names none</source>
        <translation>tutar söylenmeyen bankamatik işleminin tutarı</translation>
    </message>
    <message>
        <source>bits 1 refusals, 2 bankroll, 4 adjustments, 8 and 16 scripts</source>
        <translation>bitler 1 ret, 2 bankroll, 4 düzeltme, 8 ve 16 betikler</translation>
    </message>
    <message>
        <source>amounts below a dollar are written in cents</source>
        <translation>bir doların altı sent olarak yazılır</translation>
    </message>
    <message>
        <source>checks of a bet are changed for the fewest; else they stay as they were bet</source>
        <translation>bahsin fişleri en aza bozulur; yoksa konduğu gibi kalır</translation>
    </message>
    <message>
        <source>the pointer goes to the default button of a box</source>
        <translation>imleç kutunun varsayılan düğmesine gider</translation>
    </message>
    <message>
        <source>printing in colour</source>
        <translation>renkli yazdırma</translation>
    </message>
    <message>
        <source>how much the pointer tells</source>
        <translation>imlecin ne kadar söylediği</translation>
    </message>
    <message>
        <source>points: 9 small, 11 the desktop&apos;s own size, 13 large</source>
        <translation>punto: 9 küçük, 11 masaüstününki, 13 büyük</translation>
    </message>
    <message>
        <source>points</source>
        <translation>punto</translation>
    </message>
    <message>
        <source>how the dice move</source>
        <translation>zarların nasıl hareket ettiği</translation>
    </message>
    <message>
        <source>sound set, 0 none</source>
        <translation>ses takımı, 0 yok</translation>
    </message>
    <message>
        <source>sounds of scripts</source>
        <translation>betiklerin sesleri</translation>
    </message>
    <message>
        <source>silence</source>
        <translation>sessizlik</translation>
    </message>
    <message>
        <source>advantage: zeros are decisions</source>
        <translation>avantaj: sıfırlar karar sayılır</translation>
    </message>
    <message>
        <source>0 theoretical vig, 1 action, 2 action and time</source>
        <translation>0 kuramsal kasa payı, 1 hacim, 2 hacim ve süre</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>yüzde</translation>
    </message>
    <message>
        <source>comps ignore percentage dice</source>
        <translation>comp&apos;lar yüzdeli zarlara bakmaz</translation>
    </message>
    <message>
        <source>generator number less 1</source>
        <translation>üreteç numarası eksi 1</translation>
    </message>
    <message>
        <source>the user is asked for seeds</source>
        <translation>tohumlar kullanıcıya sorulur</translation>
    </message>
    <message>
        <source>a new session seeds again</source>
        <translation>yeni oturum yeniden tohumlar</translation>
    </message>
    <message>
        <source>the Events Log&apos;s master switch</source>
        <translation>olay günlüğünün ana anahtarı</translation>
    </message>
    <message>
        <source>Events Log class</source>
        <translation>olay günlüğü sınıfı</translation>
    </message>
    <message>
        <source>a new session clears the log</source>
        <translation>yeni oturum günlüğü boşaltır</translation>
    </message>
    <message>
        <source>the view follows the rolls</source>
        <translation>görünüm atışları izler</translation>
    </message>
    <message>
        <source>what becomes of a winner, 0 manual</source>
        <translation>kazanana ne olacağı, 0 elle</translation>
    </message>
    <message>
        <source>what becomes of a loser, 0 manual</source>
        <translation>kaybedene ne olacağı, 0 elle</translation>
    </message>
    <message>
        <source>amounts that pay whole</source>
        <translation>tam ödeyen tutarlar</translation>
    </message>
    <message>
        <source>full odds on Pass Line and Come</source>
        <translation>Pass Line ve Come&apos;da tam odds</translation>
    </message>
    <message>
        <source>full odds on Don&apos;t Pass and Don&apos;t Come</source>
        <translation>Don&apos;t Pass ve Don&apos;t Come&apos;da tam odds</translation>
    </message>
    <message>
        <source>Place and Buy on a covered number come down</source>
        <translation>örtülü sayıdaki Place ve Buy iner</translation>
    </message>
    <message>
        <source>the seat won&apos;t shoot</source>
        <translation>yer zar atmaz</translation>
    </message>
    <message>
        <source>bets without money</source>
        <translation>parasız bahisler</translation>
    </message>
    <message>
        <source>new session: 0 carry, 1 amount, 2 ask</source>
        <translation>yeni oturum: 0 taşı, 1 tutar, 2 sor</translation>
    </message>
    <message>
        <source>new session&apos;s bankroll</source>
        <translation>yeni oturumun bankroll&apos;u</translation>
    </message>
    <message>
        <source>check denominations, ascending</source>
        <translation>fiş değerleri, artan</translation>
    </message>
    <message>
        <source>what a bet pays, as in 7 to 5</source>
        <translation>bahsin ödediği, 7 to 5 gibi</translation>
    </message>
    <message>
        <source>Field by dice</source>
        <translation>zarlara göre Field</translation>
    </message>
    <message>
        <source>7 Point 7</source>
        <translation>7 Point 7</translation>
    </message>
    <message>
        <source>Midway by dice</source>
        <translation>zarlara göre Midway</translation>
    </message>
    <message>
        <source>by points made + 1</source>
        <translation>yapılan point + 1&apos;e göre</translation>
    </message>
    <message>
        <source>by line wins + 1</source>
        <translation>çizgi kazancı + 1&apos;e göre</translation>
    </message>
    <message>
        <source>by different points made</source>
        <translation>yapılan farklı point&apos;lere göre</translation>
    </message>
    <message>
        <source>works on the come-out; seat 0 the house</source>
        <translation>come-out&apos;ta çalışır; yer 0 kasa</translation>
    </message>
    <message>
        <source>counts towards comps</source>
        <translation>comp&apos;lara sayılır</translation>
    </message>
    <message>
        <source>0 plus, 1 minus, 2 times, 3 divided by</source>
        <translation>0 artı, 1 eksi, 2 çarpı, 3 bölü</translation>
    </message>
    <message>
        <source>the value of the slot</source>
        <translation>yuvanın değeri</translation>
    </message>
    <message>
        <source>0 dollars, 1 percent, 2 to 6 units of a check</source>
        <translation>0 dolar, 1 yüzde, 2 - 6 bir fişin birimleri</translation>
    </message>
    <message>
        <source> Take Bet and Winnings</source>
        <translation> Bahsi ve kazancı al</translation>
    </message>
    <message>
        <source> Same Bet/Take Winnings</source>
        <translation> Aynı bahis/kazancı al</translation>
    </message>
    <message>
        <source> Press 1 Unit</source>
        <translation> 1 birim artır</translation>
    </message>
    <message>
        <source> Press Double</source>
        <translation> İkiye katla</translation>
    </message>
    <message>
        <source> Parlay</source>
        <translation> Parlay</translation>
    </message>
    <message>
        <source> Same Bet</source>
        <translation> Aynı bahis</translation>
    </message>
    <message>
        <source> Bet</source>
        <translation> Bahis</translation>
    </message>
    <message>
        <source> No Bet/Take Remainder (if any)</source>
        <translation> Bahis yok/kalanı al (varsa)</translation>
    </message>
    <message>
        <source> Bet Remainder (if any)</source>
        <translation> Kalanı oyna (varsa)</translation>
    </message>
    <message>
        <source> Same Bet Plus 1 Unit</source>
        <translation> Aynı bahis artı 1 birim</translation>
    </message>
    <message>
        <source> Double Bet</source>
        <translation> Bahsi ikiye katla</translation>
    </message>
    <message>
        <source> Show as percentage</source>
        <translation> Yüzde olarak göster</translation>
    </message>
    <message>
        <source> Show as +/- from true %</source>
        <translation> Gerçek %&apos;den +/- olarak göster</translation>
    </message>
    <message>
        <source> Show as # rolls out of:</source>
        <translation> Şu kadar atışta sayı olarak göster:</translation>
    </message>
    <message>
        <source> Show as +/- from true rolls out of:</source>
        <translation> Gerçek atışlardan +/- olarak göster, toplam:</translation>
    </message>
    <message>
        <source> About the 1-6 axis</source>
        <translation> 1-6 ekseni çevresinde</translation>
    </message>
    <message>
        <source> About the 2-5 axis</source>
        <translation> 2-5 ekseni çevresinde</translation>
    </message>
    <message>
        <source> About the 3-4 axis</source>
        <translation> 3-4 ekseni çevresinde</translation>
    </message>
    <message>
        <source>Fair dice</source>
        <translation>Adil zarlar</translation>
    </message>
    <message>
        <source>Shooter on the 1-6 axis, 10%</source>
        <translation>Atıcı 1-6 ekseninde, yüzde 10</translation>
    </message>
    <message>
        <source>Loaded dice, 20% sixes</source>
        <translation>Hileli zarlar, yüzde 20 altı</translation>
    </message>
    <message>
        <source>18% sevens</source>
        <translation>Yüzde 18 yedi</translation>
    </message>
    <message>
        <source>15% sevens</source>
        <translation>Yüzde 15 yedi</translation>
    </message>
    <message>
        <source>Free Form Dice</source>
        <translation>Serbest biçimli zarlar</translation>
    </message>
    <message>
        <source>Percentage Dice</source>
        <translation>Yüzdeli zarlar</translation>
    </message>
    <message>
        <source>&amp;11 basic numbers</source>
        <translation>&amp;11 temel sayı</translation>
    </message>
    <message>
        <source>&amp;36 combos (triangle)</source>
        <translation>&amp;36 birleşim (üçgen)</translation>
    </message>
    <message>
        <source>3&amp;6 combos (box)</source>
        <translation>3&amp;6 birleşim (kutu)</translation>
    </message>
    <message>
        <source>&amp;Individual dice faces</source>
        <translation>&amp;Tek tek zar yüzleri</translation>
    </message>
    <message>
        <source>Set 1st checkstack to #</source>
        <translation>1. CheckStack&apos;i şu numaraya ayarla</translation>
    </message>
    <message>
        <source>Set 2nd checkstack to #</source>
        <translation>2. CheckStack&apos;i şu numaraya ayarla</translation>
    </message>
    <message>
        <source>Set 3rd checkstack to #</source>
        <translation>3. CheckStack&apos;i şu numaraya ayarla</translation>
    </message>
    <message>
        <source>Set 4th checkstack to #</source>
        <translation>4. CheckStack&apos;i şu numaraya ayarla</translation>
    </message>
    <message>
        <source># Rolls</source>
        <translation>Atış sayısı</translation>
    </message>
    <message>
        <source># Bets Decided</source>
        <translation>Sonuçlanan bahis sayısı</translation>
    </message>
    <message>
        <source># Bets Won</source>
        <translation>Kazanılan bahis sayısı</translation>
    </message>
    <message>
        <source># Bets Lost</source>
        <translation>Kaybedilen bahis sayısı</translation>
    </message>
    <message>
        <source># Bets Won/Lost (Net)</source>
        <translation>Kazanılan/kaybedilen sayı (net)</translation>
    </message>
    <message>
        <source>$ Bets Decided (Handle)</source>
        <translation>$ sonuçlanan bahis (hacim)</translation>
    </message>
    <message>
        <source>$ Bets Won</source>
        <translation>$ kazanılan bahis</translation>
    </message>
    <message>
        <source>$ Bets Lost</source>
        <translation>$ kaybedilen bahis</translation>
    </message>
    <message>
        <source>$ Bets Won/Lost (Net)</source>
        <translation>$ kazanılan/kaybedilen (net)</translation>
    </message>
    <message>
        <source>% Won or Lost (HA)</source>
        <translation>% kazanılan ya da kaybedilen (HA)</translation>
    </message>
    <message>
        <source>Invested bankroll</source>
        <translation>Yatırılan bankroll</translation>
    </message>
    <message>
        <source>Ending bankroll</source>
        <translation>Son bankroll</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Toplam</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Ortalama</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Medyan</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Yüksek</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>Orta</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Düşük</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Aralık</translation>
    </message>
    <message>
        <source>Variance</source>
        <translation>Varyans</translation>
    </message>
    <message>
        <source>Std Dev</source>
        <translation>Std sapma</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Çarpıklık</translation>
    </message>
    <message>
        <source>Kurtosis</source>
        <translation>Basıklık</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Özet</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>Eller</translation>
    </message>
    <message>
        <source>Bet Results</source>
        <translation>Bahis sonuçları</translation>
    </message>
    <message>
        <source>Bet Trends</source>
        <translation>Bahis eğilimleri</translation>
    </message>
    <message>
        <source>Roll Totals</source>
        <translation>Atış toplamları</translation>
    </message>
    <message>
        <source>Roll Frequencies</source>
        <translation>Atış sıklıkları</translation>
    </message>
    <message>
        <source>Current hand</source>
        <translation>Şimdiki el</translation>
    </message>
    <message>
        <source>Last hand</source>
        <translation>Son el</translation>
    </message>
    <message>
        <source>Current session</source>
        <translation>Şimdiki oturum</translation>
    </message>
    <message>
        <source>Last session</source>
        <translation>Son oturum</translation>
    </message>
    <message>
        <source>All sessions</source>
        <translation>Tüm oturumlar</translation>
    </message>
    <message>
        <source>No bets selected</source>
        <translation>Bahis seçilmedi</translation>
    </message>
    <message>
        <source>Resolved</source>
        <translation>Sonuçlanan</translation>
    </message>
    <message>
        <source>Tendered</source>
        <translation>Konan</translation>
    </message>
    <message>
        <source>Average $</source>
        <translation>Ortalama $</translation>
    </message>
    <message>
        <source>Avg # / hour</source>
        <translation>Saatte ort. sayı</translation>
    </message>
    <message>
        <source>Avg $ / hour</source>
        <translation>Saatte ort. $</translation>
    </message>
    <message>
        <source>Total #</source>
        <translation>Toplam sayı</translation>
    </message>
    <message>
        <source>Total $</source>
        <translation>Toplam $</translation>
    </message>
    <message>
        <source>High $</source>
        <translation>En yüksek $</translation>
    </message>
    <message>
        <source>Low $</source>
        <translation>En düşük $</translation>
    </message>
    <message>
        <source>Last $</source>
        <translation>Son $</translation>
    </message>
    <message>
        <source># rolls since last</source>
        <translation>O zamandan beri atış</translation>
    </message>
    <message>
        <source>Last roll #</source>
        <translation>Son atış no</translation>
    </message>
    <message>
        <source>Last roll $</source>
        <translation>Son atış $</translation>
    </message>
    <message>
        <source>Current #</source>
        <translation>Şimdiki sayı</translation>
    </message>
    <message>
        <source>Current $</source>
        <translation>Şimdiki $</translation>
    </message>
    <message>
        <source>Prior roll #</source>
        <translation>Önceki atış no</translation>
    </message>
    <message>
        <source>Prior roll $</source>
        <translation>Önceki atış $</translation>
    </message>
    <message>
        <source>Wagers #</source>
        <translation>Bahis sayısı</translation>
    </message>
    <message>
        <source>Wagers $</source>
        <translation>Bahis $</translation>
    </message>
    <message>
        <source>Wins #</source>
        <translation>Kazanç sayısı</translation>
    </message>
    <message>
        <source>Losses #</source>
        <translation>Kayıp sayısı</translation>
    </message>
    <message>
        <source>Net $</source>
        <translation>Net $</translation>
    </message>
    <message>
        <source>Net %</source>
        <translation>Net %</translation>
    </message>
    <message>
        <source>Wagers</source>
        <translation>Bahisler</translation>
    </message>
    <message>
        <source>Wins</source>
        <translation>Kazançlar</translation>
    </message>
    <message>
        <source>Losses</source>
        <translation>Kayıplar</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Net</translation>
    </message>
    <message>
        <source>Expected value $</source>
        <translation>Beklenen değer $</translation>
    </message>
    <message>
        <source>in a row</source>
        <translation>üst üste</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Toplam</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Point&apos;ler</translation>
    </message>
    <message>
        <source>Naturals</source>
        <translation>Natural&apos;lar</translation>
    </message>
    <message>
        <source>c/o rolls</source>
        <translation>c/o atışları</translation>
    </message>
    <message>
        <source>passes</source>
        <translation>passes</translation>
    </message>
    <message>
        <source>misses</source>
        <translation>misses</translation>
    </message>
    <message>
        <source>Total rolls</source>
        <translation>Toplam atış</translation>
    </message>
    <message>
        <source>Total hands</source>
        <translation>Toplam el</translation>
    </message>
    <message>
        <source>Most rolls in a hand</source>
        <translation>Bir elde en çok atış</translation>
    </message>
    <message>
        <source>Most c/o rolls in a hand</source>
        <translation>Bir elde en çok c/o atışı</translation>
    </message>
    <message>
        <source>Most passes in a hand</source>
        <translation>Bir elde en çok passes</translation>
    </message>
    <message>
        <source>Most misses in a hand</source>
        <translation>Bir elde en çok misses</translation>
    </message>
    <message>
        <source>Avg rolls per hand</source>
        <translation>El başına ort. atış</translation>
    </message>
    <message>
        <source>Avg c/o rolls per hand</source>
        <translation>El başına ort. c/o atışı</translation>
    </message>
    <message>
        <source>Avg passes per hand</source>
        <translation>El başına ort. passes</translation>
    </message>
    <message>
        <source>Avg misses per hand</source>
        <translation>El başına ort. misses</translation>
    </message>
    <message>
        <source>value</source>
        <translation>değer</translation>
    </message>
    <message>
        <source>Total session rolls:</source>
        <translation>Oturumun toplam atışı:</translation>
    </message>
    <message>
        <source>Total rolls this selection:</source>
        <translation>Bu seçimin toplam atışı:</translation>
    </message>
    <message>
        <source># rolls since last rolled:</source>
        <translation>Son gelişinden beri atış:</translation>
    </message>
    <message>
        <source>Actual % rolled:</source>
        <translation>Gerçekte gelen %:</translation>
    </message>
    <message>
        <source>Skewed probable %:</source>
        <translation>Çarpık olasılık %:</translation>
    </message>
    <message>
        <source>True probable %:</source>
        <translation>Gerçek olasılık %:</translation>
    </message>
    <message>
        <source>Average # of rolls to achieve:</source>
        <translation>Gelmesi için ortalama atış:</translation>
    </message>
    <message>
        <source>Rolls to come again, and how often</source>
        <translation>Yeniden gelene dek atış, ve kaç kez</translation>
    </message>
    <message>
        <source>Number %1</source>
        <translation>Sayı %1</translation>
    </message>
    <message>
        <source>Numbers %1</source>
        <translation>Sayılar %1</translation>
    </message>
    <message>
        <source>Any %1</source>
        <translation>Herhangi %1</translation>
    </message>
    <message>
        <source>Hard %1</source>
        <translation>Hard %1</translation>
    </message>
    <message>
        <source>Die %1, face %2</source>
        <translation>Zar %1, yüz %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 ya da %2</translation>
    </message>
    <message>
        <source>language of the window</source>
        <translation>pencerenin dili</translation>
    </message>
    <message>
        <source>As at first</source>
        <translation>İlk hali gibi</translation>
    </message>
    <message>
        <source>The table as it is when the program is started for the first time.</source>
        <translation>Program ilk kez başladığında masanın hali.</translation>
    </message>
    <message>
        <source>3-4-5x odds, $10 table</source>
        <translation>3-4-5x odds, 10 $ masası</translation>
    </message>
    <message>
        <source>The usual table of a large house: three times odds on 4 and 10, four on 5 and 9, five on 6 and 8.</source>
        <translation>Büyük bir kasanın olağan masası: 4 ve 10&apos;da üç, 5 ve 9&apos;da dört, 6 ve 8&apos;de beş kat odds.</translation>
    </message>
    <message>
        <source>3-4-5x odds, $25 table</source>
        <translation>3-4-5x odds, 25 $ masası</translation>
    </message>
    <message>
        <source>The same in the evening: a higher minimum, propositions from $5.</source>
        <translation>Akşam aynı masa: daha yüksek en az bahis, proposition&apos;lar 5 $&apos;dan.</translation>
    </message>
    <message>
        <source>Double odds, $5 table</source>
        <translation>İki kat odds, 5 $ masası</translation>
    </message>
    <message>
        <source>A small house with double odds and every side bet.</source>
        <translation>İki kat odds ve tüm yan bahislerle küçük bir kasa.</translation>
    </message>
    <message>
        <source>Single odds, bar 2, $5 table</source>
        <translation>Tek odds, yasak 2, 5 $ masası</translation>
    </message>
    <message>
        <source>An old house: single odds, two aces barred, no Put bets.</source>
        <translation>Eski bir kasa: tek odds, iki as yasak, Put bahsi yok.</translation>
    </message>
    <message>
        <source>10x odds, $10 table</source>
        <translation>10x odds, 10 $ masası</translation>
    </message>
    <message>
        <source>Ten times odds on every point, vig only when Buy and Lay bets win.</source>
        <translation>Her point&apos;te on kat odds, vig yalnız Buy ve Lay kazanınca.</translation>
    </message>
    <message>
        <source>20x odds, $5 table</source>
        <translation>20x odds, 5 $ masası</translation>
    </message>
    <message>
        <source>Twenty times odds on every point, a low minimum.</source>
        <translation>Her point&apos;te yirmi kat odds, düşük bir en az bahis.</translation>
    </message>
    <message>
        <source>100x odds, $5 table</source>
        <translation>100x odds, 5 $ masası</translation>
    </message>
    <message>
        <source>A hundred times odds on every point: what the house keeps is least here.</source>
        <translation>Her point&apos;te yüz kat odds: kasaya en az burada kalır.</translation>
    </message>
    <message>
        <source>At home, from a quarter</source>
        <translation>Evde, çeyrekten</translation>
    </message>
    <message>
        <source>Checks of 25 cents to $25, bets from a quarter to $50.</source>
        <translation>25 sentten 25 $&apos;a fişler, çeyrekten 50 $&apos;a bahisler.</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>adsız</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Export</source>
        <translation>Dışa aktar</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;All files (*)</source>
        <translation>Virgülle ayrılmış değerler (*.csv);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation>Resmi dışa aktar</translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;All files (*)</source>
        <translation>PNG resimleri (*.png);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>SVG drawings (*.svg);;All files (*)</source>
        <translation>SVG çizimleri (*.svg);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>PDF olarak kaydet</translation>
    </message>
    <message>
        <source>PDF files (*.pdf);;All files (*)</source>
        <translation>PDF dosyaları (*.pdf);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Open Events Log</source>
        <translation>Olay günlüğü aç</translation>
    </message>
    <message>
        <source>Events log file (*.txt);;All files (*)</source>
        <translation>Olay günlüğü dosyası (*.txt);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Save Events Log As</source>
        <translation>Olay günlüğünü farklı kaydet</translation>
    </message>
    <message>
        <source>Open Session File</source>
        <translation>Oturum dosyası aç</translation>
    </message>
    <message>
        <source>Session files (*.crp);;All files (*)</source>
        <translation>Oturum dosyaları (*.crp);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Save Session File As</source>
        <translation>Oturum dosyasını farklı kaydet</translation>
    </message>
    <message>
        <source>Open Auto-Bet File</source>
        <translation>Auto-Bet dosyası aç</translation>
    </message>
    <message>
        <source>Auto-bet files (*.bet);;All files (*)</source>
        <translation>Auto-Bet dosyaları (*.bet);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Save Auto-Bet File As</source>
        <translation>Auto-Bet dosyasını farklı kaydet</translation>
    </message>
    <message>
        <source>Select Auto-Bet File for Hot-Key</source>
        <translation>Kısayol tuşu için Auto-Bet dosyası seç</translation>
    </message>
    <message>
        <source>Open Probability File</source>
        <translation>Olasılık dosyası aç</translation>
    </message>
    <message>
        <source>Probability file (*.prb);;All files (*)</source>
        <translation>Olasılık dosyası (*.prb);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Save Probability File As</source>
        <translation>Olasılık dosyasını farklı kaydet</translation>
    </message>
    <message>
        <source>Open Dice Roll File  or  Enter Name For A New File</source>
        <translation>Zar dosyası aç  ya da  yeni dosyanın adını yaz</translation>
    </message>
    <message>
        <source>Dice roll file (*.rol);;All files (*)</source>
        <translation>Zar dosyası (*.rol);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Copy To Dice Roll File</source>
        <translation>Zar dosyasına kopyala</translation>
    </message>
    <message>
        <source>Copy To Roll File</source>
        <translation>Zar dosyasına kopyala</translation>
    </message>
    <message>
        <source>Copy Dice Rolls To Text File</source>
        <translation>Atışları metin dosyasına kopyala</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>Metin dosyaları (*.txt);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Copy To Text File</source>
        <translation>Metin dosyasına kopyala</translation>
    </message>
    <message>
        <source>Paste From Dice Roll File</source>
        <translation>Zar dosyasından yapıştır</translation>
    </message>
    <message>
        <source>Paste From Ascii/Text File</source>
        <translation>ASCII/metin dosyasından yapıştır</translation>
    </message>
    <message>
        <source>RNG Seed</source>
        <translation>Üreteç tohumu</translation>
    </message>
    <message>
        <source>Auto-bet files (*.bet);;Auto-bet &amp; text files (*.bet *.txt);;Text files (*.txt);;All files (*.*)</source>
        <translation>Auto-Bet dosyaları (*.bet);;Auto-Bet ve metin dosyaları (*.bet *.txt);;Metin dosyaları (*.txt);;Tüm dosyalar (*.*)</translation>
    </message>
    <message>
        <source>Open House Rules</source>
        <translation>Kasa kuralları aç</translation>
    </message>
    <message>
        <source>House rules (*.txt);;All files (*)</source>
        <translation>Kasa kuralları (*.txt);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Save House Rules As</source>
        <translation>Kasa kurallarını farklı kaydet</translation>
    </message>
    <message>
        <source>Save Laboratory Report As</source>
        <translation>Laboratuvar raporunu farklı kaydet</translation>
    </message>
    <message>
        <source>Web pages (*.html);;All files (*)</source>
        <translation>Web sayfaları (*.html);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Dice Roll File</source>
        <translation>Zar dosyası</translation>
    </message>
    <message>
        <source>Record Dice Rolls During Game Play</source>
        <translation>Oyun sırasında atışları kaydet</translation>
    </message>
    <message>
        <source>Playback Dice Rolls During Game Play</source>
        <translation>Oyun sırasında atışları oynat</translation>
    </message>
    <message>
        <source>Record Dice Rolls</source>
        <translation>Atışları kaydet</translation>
    </message>
    <message>
        <source>Print Dice Roll File</source>
        <translation>Zar dosyasını yazdır</translation>
    </message>
    <message>
        <source>Print Dice Rolls</source>
        <translation>Atışları yazdır</translation>
    </message>
    <message>
        <source>Open Sessions Log</source>
        <translation>Oturum günlüğü aç</translation>
    </message>
    <message>
        <source>Sessions logs (*.slg);;All files (*)</source>
        <translation>Oturum günlükleri (*.slg);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Save Sessions Log As</source>
        <translation>Oturum günlüğünü farklı kaydet</translation>
    </message>
    <message>
        <source>Open Laboratory Experiment</source>
        <translation>Laboratuvar deneyi aç</translation>
    </message>
    <message>
        <source>Laboratory experiments (*.lab);;All files (*)</source>
        <translation>Laboratuvar deneyleri (*.lab);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Save Laboratory Experiment As</source>
        <translation>Laboratuvar deneyini farklı kaydet</translation>
    </message>
    <message>
        <source>Save Sessions As</source>
        <translation>Oturumları farklı kaydet</translation>
    </message>
    <message>
        <source>Sessions Logs (*.slg);;All files (*)</source>
        <translation>Oturum günlükleri (*.slg);;Tüm dosyalar (*)</translation>
    </message>
    <message>
        <source>Save Results As</source>
        <translation>Sonuçları farklı kaydet</translation>
    </message>
    <message>
        <source>JSON (*.json);;All files (*)</source>
        <translation>JSON (*.json);;Tüm dosyalar (*)</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>Click a + to join</source>
        <translation>Katılmak için bir + işaretine tıkla</translation>
    </message>
    <message>
        <source>Choose a check, click PASS LINE</source>
        <translation>Bir fiş seç, PASS LINE&apos;a tıkla</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Zar at</translation>
    </message>
</context>
<context>
    <name>HelpFigures</name>
    <message>
        <source>as odds on the point</source>
        <translation>point&apos;teki odds gibi</translation>
    </message>
    <message>
        <source>%1, less %2% vig</source>
        <translation>%1, eksi yüzde %2 vig</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Bahis</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Öder</translation>
    </message>
    <message>
        <source>House edge</source>
        <translation>Kasa payı</translation>
    </message>
    <message>
        <source>Edge a roll</source>
        <translation>Atış başına pay</translation>
    </message>
    <message>
        <source>Rolls to a decision</source>
        <translation>Sonuca dek atış</translation>
    </message>
    <message>
        <source>What comes</source>
        <translation>Ne gelir</translation>
    </message>
    <message>
        <source>nothing, and stays</source>
        <translation>hiçbir şey, kalır</translation>
    </message>
    <message>
        <source>loses</source>
        <translation>kaybeder</translation>
    </message>
    <message>
        <source>loses in part</source>
        <translation>bir kısmını kaybeder</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Kural</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Şimdi</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ayar</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Kasa</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Kurallar</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Komut satırı</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Komut</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tuş</translation>
    </message>
</context>
<context>
    <name>Laboratory</name>
    <message>
        <source>Laboratory</source>
        <translation>Laboratuvar</translation>
    </message>
    <message numerus="yes">
        <source>At the table: session %1 of %2, %3 rolls to %4</source>
        <translation>
            <numerusform>Masada: oturum %1 / %2, %4 için %3 atış</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no session rolled the dice: %2</source>
        <translation>%1: hiçbir oturum zar atmadı: %2</translation>
    </message>
    <message>
        <source>%1: its script has errors: %2</source>
        <translation>%1: betiğinde hatalar var: %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>%1 ends a session at %2 on average: between %3 and %4, 95% sure.</source>
        <translation>%1 bir oturumu ortalama %2 ile bitirir: %3 ile %4 arası, yüzde 95 kesin.</translation>
    </message>
    <message>
        <source>%1 ends a session %2 better than %3 on the same dice: between %4 and %5, 95% sure.</source>
        <translation>%1 aynı zarlarla bir oturumu %3 sisteminden %2 daha iyi bitirir: %4 ile %5 arası, yüzde 95 kesin.</translation>
    </message>
    <message>
        <source>Neither is sure to be better: %1 less %2 is %3 a session, between %4 and %5.</source>
        <translation>Hiçbiri kesin olarak daha iyi değil: %1 eksi %2 oturum başına %3, %4 ile %5 arası.</translation>
    </message>
    <message>
        <source>start %1</source>
        <translation>başlangıç %1</translation>
    </message>
    <message>
        <source>goal +%1</source>
        <translation>hedef +%1</translation>
    </message>
    <message>
        <source>loss limit -%1</source>
        <translation>kayıp sınırı -%1</translation>
    </message>
    <message numerus="yes">
        <source>at most %1 rolls</source>
        <translation>
            <numerusform>en çok %1 atış</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %1 hands</source>
        <translation>
            <numerusform>en çok %1 el</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions each, %2.</source>
        <translation>
            <numerusform>her biri %1 oturum, %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 would give ±%2.</source>
        <translation>%1, ±%2 verirdi.</translation>
    </message>
    <message>
        <source>Goal reached</source>
        <translation>Hedefe ulaştı</translation>
    </message>
    <message>
        <source>Loss limit met</source>
        <translation>Kayıp sınırına ulaştı</translation>
    </message>
    <message>
        <source>Ruined</source>
        <translation>Battı</translation>
    </message>
    <message>
        <source>Stopped by itself</source>
        <translation>Kendi durdu</translation>
    </message>
    <message>
        <source>Ended ahead</source>
        <translation>Önde bitti</translation>
    </message>
    <message>
        <source>Ended even</source>
        <translation>Başa baş bitti</translation>
    </message>
    <message>
        <source>Ended behind</source>
        <translation>Geride bitti</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Oturumlar</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Ortalama</translation>
    </message>
    <message>
        <source>Mean without luck</source>
        <translation>Şanssız ortalama</translation>
    </message>
    <message>
        <source>Std Dev</source>
        <translation>Std sapma</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Medyan</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Düşük</translation>
    </message>
    <message>
        <source>5% quantile</source>
        <translation>Yüzde 5&apos;lik dilim</translation>
    </message>
    <message>
        <source>95% quantile</source>
        <translation>Yüzde 95&apos;lik dilim</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Yüksek</translation>
    </message>
    <message>
        <source>Mean drawdown</source>
        <translation>Ortalama düşüş</translation>
    </message>
    <message>
        <source>Ahead</source>
        <translation>Önde</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Hedef</translation>
    </message>
    <message>
        <source>Mean rolls</source>
        <translation>Ortalama atış</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Ölçü</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistem</translation>
    </message>
    <message>
        <source>loss limit %1</source>
        <translation>kayıp sınırı %1</translation>
    </message>
    <message>
        <source>goal %1</source>
        <translation>hedef %1</translation>
    </message>
    <message>
        <source># sessions</source>
        <translation>Oturum sayısı</translation>
    </message>
    <message>
        <source>Line: 1% to 99%.  Thick: 5% to 95%.  Box: the middle half, bar at the median.  Diamond: mean.</source>
        <translation>Çizgi: yüzde 1 - 99.  Kalın: yüzde 5 - 95.  Kutu: orta yarı, çubuk medyanda.  Baklava: ortalama.</translation>
    </message>
    <message>
        <source>Only sessions with a most number of rolls are looked at on the way.</source>
        <translation>Yolda yalnız atış sayısı sınırlı oturumlara bakılır.</translation>
    </message>
    <message>
        <source>Won or lost, $</source>
        <translation>Kazanılan ya da kaybedilen, $</translation>
    </message>
    <message>
        <source>Rolls.  Line: median.  Inner band: the middle half.  Outer band: 5% to 95%.</source>
        <translation>Atışlar.  Çizgi: medyan.  İç bant: orta yarı.  Dış bant: yüzde 5 - 95.</translation>
    </message>
    <message>
        <source>Result of a session, $</source>
        <translation>Bir oturumun sonucu, $</translation>
    </message>
    <message>
        <source>Bankrolls on the way</source>
        <translation>Yolda bankroll&apos;lar</translation>
    </message>
    <message>
        <source>How sessions end, with 95% bounds</source>
        <translation>Oturumlar nasıl biter, yüzde 95 sınırlarıyla</translation>
    </message>
    <message>
        <source>Nothing has been played yet.</source>
        <translation>Henüz bir şey oynanmadı.</translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions (%2)</source>
        <translation>
            <numerusform>%1 oturum (%2)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: A %3</source>
        <translation>%1 - %2: A %3</translation>
    </message>
    <message>
        <source>, B %1</source>
        <translation>, B %1</translation>
    </message>
    <message>
        <source>at most %1 hours</source>
        <translation>en çok %1 saat</translation>
    </message>
    <message>
        <source>Price of the bets</source>
        <translation>Bahislerin bedeli</translation>
    </message>
    <message>
        <source>less system</source>
        <translation>eksi sistem</translation>
    </message>
    <message>
        <source>Mean difference</source>
        <translation>Ortalama fark</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Üst</translation>
    </message>
    <message>
        <source>Better, 95% sure</source>
        <translation>Daha iyi, yüzde 95 kesin</translation>
    </message>
    <message>
        <source>the first</source>
        <translation>birinci</translation>
    </message>
    <message>
        <source>the second</source>
        <translation>ikinci</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>belli değil</translation>
    </message>
    <message>
        <source>Least bankroll</source>
        <translation>En düşük bankroll</translation>
    </message>
    <message>
        <source>Largest start of CheckStack %1</source>
        <translation>CheckStack %1 en yüksek başlangıcı</translation>
    </message>
    <message>
        <source>95% bounds</source>
        <translation>Yüzde 95 sınırları</translation>
    </message>
    <message>
        <source>none</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>%1: nothing keeps the ruined within %2.</source>
        <translation>%1: hiçbir değer batanları %2 ile sınırlamıyor.</translation>
    </message>
    <message>
        <source>%1 needs a bankroll of %2, so that at most %3 are ruined: between %4 and %5, 95% sure.</source>
        <translation>%1: batanların en çok %3 olması için %2 bankroll gerekir; %4 ile %5 arası, yüzde 95 kesin.</translation>
    </message>
    <message>
        <source>%1: any start of the CheckStack keeps the ruined within %2.</source>
        <translation>%1: CheckStack hangi tutardan başlarsa başlasın batanlar %2 sınırını aşmıyor.</translation>
    </message>
    <message>
        <source>%1: CheckStack %2 may start at %3, so that at most %4 are ruined: between %5 and %6, 95% sure.</source>
        <translation>%1: batanların en çok %4 olması için CheckStack %2 en çok %3 ile başlayabilir; %5 ile %6 arası, yüzde 95 kesin.</translation>
    </message>
    <message>
        <source>No session was ruined.</source>
        <translation>Hiçbir oturum batmadı.</translation>
    </message>
    <message>
        <source>Ruined by then, share of sessions</source>
        <translation>O ana dek batan, oturumların payı</translation>
    </message>
    <message>
        <source>Rolls.  Line: A.  Dashed: B.</source>
        <translation>Atışlar.  Çizgi: A.  Kesikli: B.</translation>
    </message>
    <message>
        <source>Rolls.</source>
        <translation>Atışlar.</translation>
    </message>
    <message>
        <source>Ruin over time</source>
        <translation>Zaman içinde batma</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Tarama</translation>
    </message>
    <message>
        <source>Framed: the best.  Dotted: not sure to be worse than that.</source>
        <translation>Çerçeveli: en iyisi.  Noktalı: ondan kötü olduğu kesin değil.</translation>
    </message>
    <message>
        <source>Framed: the best.</source>
        <translation>Çerçeveli: en iyisi.</translation>
    </message>
    <message>
        <source>%1, with 95% bounds</source>
        <translation>%1, yüzde 95 sınırlarıyla</translation>
    </message>
    <message>
        <source>Nothing was varied. Let a CheckStack start at several values, or vary a setting, and what comes of each stands here.</source>
        <translation>Hiçbir şey değiştirilmedi. Bir CheckStack&apos;i birkaç değerden başlatın ya da bir ayarı değiştirin; her birinin sonucu burada görünür.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: mean %2 ± %3, median %4, ruined %5</source>
        <translation>%1: ortalama %2 ± %3, medyan %4, batan %5</translation>
    </message>
</context>
<context>
    <name>LaboratorySetup</name>
    <message>
        <source>%1 %2: %3</source>
        <translation>%1 %2: %3</translation>
    </message>
</context>
<context>
    <name>PickList</name>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tümünü seç</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;Hiçbirini seçme</translation>
    </message>
</context>
<context>
    <name>Plates</name>
    <message numerus="yes">
        <source>%1 Bets:</source>
        <translation>
            <numerusform>%1 bahis:</numerusform>
        </translation>
    </message>
    <message>
        <source>Won:</source>
        <translation>Kazanç:</translation>
    </message>
    <message>
        <source>Lost:</source>
        <translation>Kayıp:</translation>
    </message>
    <message>
        <source>Even:</source>
        <translation>Eşit:</translation>
    </message>
    <message>
        <source>Rail:</source>
        <translation>Ray:</translation>
    </message>
    <message>
        <source>Bankroll:</source>
        <translation>Bankroll:</translation>
    </message>
    <message>
        <source>Bank:</source>
        <translation>Bakiye:</translation>
    </message>
</context>
<context>
    <name>PrintHeading</name>
    <message>
        <source>Game file:  %1</source>
        <translation>Oyun dosyası:  %1</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>adsız</translation>
    </message>
    <message>
        <source>Player:  %1</source>
        <translation>Oyuncu:  %1</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Sayfa %1 / %2</translation>
    </message>
    <message>
        <source>The pages are being made.</source>
        <translation>Sayfalar hazırlanıyor.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Yazdır</translation>
    </message>
    <message>
        <source>The rows are being written.</source>
        <translation>Satırlar yazılıyor.</translation>
    </message>
    <message>
        <source>The rows are being copied.</source>
        <translation>Satırlar kopyalanıyor.</translation>
    </message>
</context>
<context>
    <name>ProbabilityPicture</name>
    <message>
        <source>Die 1 down, die 2 across: % points from fair</source>
        <translation>Zar 1 aşağı, zar 2 yana: adilden % puan farkı</translation>
    </message>
    <message>
        <source>Totals: filled as set, hatched fair</source>
        <translation>Toplamlar: dolu ayarlanan, taralı adil</translation>
    </message>
    <message>
        <source>How the dice differ from fair ones</source>
        <translation>Zarların adil zarlardan farkı</translation>
    </message>
</context>
<context>
    <name>ProbabilityTable</name>
    <message>
        <source>Probability</source>
        <translation>Olasılık</translation>
    </message>
    <message>
        <source>Die 1</source>
        <translation>Zar 1</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Toplamlar</translation>
    </message>
    <message>
        <source>Die 2</source>
        <translation>Zar 2</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Toplam %1</translation>
    </message>
    <message>
        <source>Die 1 shows %1</source>
        <translation>Zar 1 %1 gösterir</translation>
    </message>
    <message>
        <source>Die 2 shows %1</source>
        <translation>Zar 2 %1 gösterir</translation>
    </message>
    <message>
        <source>Die 1 shows %1 and die 2 shows %2</source>
        <translation>Zar 1 %1, zar 2 %2 gösterir</translation>
    </message>
    <message>
        <source>%1: %2, locked</source>
        <translation>%1: %2, kilitli</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (kaydedilmedi)</translation>
    </message>
    <message>
        <source>Die %1</source>
        <translation>Zar %1</translation>
    </message>
    <message>
        <source>Effectiveness %:</source>
        <translation>Etkinlik %:</translation>
    </message>
    <message>
        <source>Die %1, shooter&apos;s effectiveness in percent</source>
        <translation>Zar %1, atıcının yüzde etkinliği</translation>
    </message>
    <message>
        <source>Shooter&apos;s Effectiveness</source>
        <translation>Atıcının etkinliği</translation>
    </message>
    <message>
        <source>In so many percent of the rolls a die turns about its axis, so that the two faces at the axis&apos; ends never show. All cells are unlocked first.</source>
        <translation>Atışların bu kadar yüzdesinde zar ekseni çevresinde döner, böylece eksenin uçlarındaki iki yüz hiç gelmez. Önce tüm hücrelerin kilidi açılır.</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Kabul</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>* beyond 2 standard errors</source>
        <translation>* 2 standart hatadan fazla</translation>
    </message>
    <message>
        <source>PERCENT</source>
        <translation>YÜZDE</translation>
    </message>
    <message>
        <source>Actual</source>
        <translation>Gerçek</translation>
    </message>
    <message>
        <source>Probable (skewed)</source>
        <translation>Olası (çarpık)</translation>
    </message>
    <message>
        <source>Probable</source>
        <translation>Olası</translation>
    </message>
    <message>
        <source>TIMES</source>
        <translation>KEZ</translation>
    </message>
    <message>
        <source>rolls to come again</source>
        <translation>yeniden gelene dek atış</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>Standa&amp;rt</translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translation>&amp;Yeşil</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation>&amp;Mavi</translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translation>&amp;Kırmızı</translation>
    </message>
    <message>
        <source>G&amp;old</source>
        <translation>&amp;Altın</translation>
    </message>
    <message>
        <source>&amp;Purple</source>
        <translation>M&amp;or</translation>
    </message>
    <message>
        <source>&amp;Teal</source>
        <translation>&amp;Turkuaz</translation>
    </message>
    <message>
        <source>Or&amp;ange</source>
        <translation>T&amp;uruncu</translation>
    </message>
    <message>
        <source>Gr&amp;ey</source>
        <translation>&amp;Gri</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>&amp;Beyaz</translation>
    </message>
    <message>
        <source>Blac&amp;k</source>
        <translation>&amp;Siyah</translation>
    </message>
    <message>
        <source>No players present</source>
        <translation>Masada oyuncu yok</translation>
    </message>
    <message>
        <source>No players selected</source>
        <translation>Oyuncu seçilmedi</translation>
    </message>
    <message>
        <source>All players selected</source>
        <translation>Tüm oyuncular seçildi</translation>
    </message>
    <message numerus="yes">
        <source>%1 players selected</source>
        <translation>
            <numerusform>%1 oyuncu seçildi</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, more than two standard errors off</source>
        <translation>%1, iki standart hatadan fazla uzak</translation>
    </message>
    <message>
        <source>A click on a heading, or Enter, sorts by the column</source>
        <translation>Bir başlığa tıklamak ya da Enter o sütuna göre sıralar</translation>
    </message>
    <message>
        <source>Percentages</source>
        <translation>Yüzdeler</translation>
    </message>
    <message>
        <source>Skewed</source>
        <translation>Çarpık</translation>
    </message>
    <message>
        <source>&amp;11 basic numbers</source>
        <translation>&amp;11 temel sayı</translation>
    </message>
    <message>
        <source>&amp;21 distinguishable combos</source>
        <translation>&amp;21 ayırt edilebilir birleşim</translation>
    </message>
    <message>
        <source>&amp;36 unique combos</source>
        <translation>&amp;36 tekil birleşim</translation>
    </message>
    <message>
        <source>&amp;Dice faces</source>
        <translation>&amp;Zar yüzleri</translation>
    </message>
    <message>
        <source>Rolls that count</source>
        <translation>Sayılan atışlar</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Oyuncu</translation>
    </message>
    <message>
        <source>Outcome of a roll</source>
        <translation>Bir atışın sonucu</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Oyuncular</translation>
    </message>
    <message>
        <source>Players who count</source>
        <translation>Sayılan oyuncular</translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Bahisler</translation>
    </message>
    <message>
        <source>Bets that count</source>
        <translation>Sayılan bahisler</translation>
    </message>
    <message>
        <source>Probabilities of the percentage dice, else of true dice</source>
        <translation>Yüzdeli zarların olasılıkları, yoksa gerçek zarların</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>&amp;Each bet in a row</source>
        <translation>&amp;Her bahis bir satırda</translation>
    </message>
    <message>
        <source>Use thousands &amp;separator</source>
        <translation>&amp;Binlik ayırıcı kullan</translation>
    </message>
    <message>
        <source>Font &amp;bold</source>
        <translation>&amp;Kalın yazı</translation>
    </message>
    <message>
        <source>Font &amp;italic</source>
        <translation>&amp;Eğik yazı</translation>
    </message>
    <message>
        <source>Display &amp;totals</source>
        <translation>&amp;Toplamları göster</translation>
    </message>
    <message>
        <source>&amp;Hide probability bars</source>
        <translation>&amp;Olasılık çubuklarını gizle</translation>
    </message>
    <message>
        <source>Graph &amp;background color ...</source>
        <translation>Grafik &amp;arka plan rengi ...</translation>
    </message>
    <message>
        <source>&amp;Graph bars color ...</source>
        <translation>Grafik ç&amp;ubuk rengi ...</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <source>The table below it has its figures</source>
        <translation>Rakamları alttaki tabloda</translation>
    </message>
    <message>
        <source>Selected player</source>
        <translation>Seçili oyuncu</translation>
    </message>
    <message>
        <source>* more than two standard errors from the probable</source>
        <translation>* olasıdan iki standart hatadan fazla</translation>
    </message>
</context>
<context>
    <name>RollChart</name>
    <message>
        <source>Distribution of the totals: %1</source>
        <translation>Toplamların dağılımı: %1</translation>
    </message>
    <message>
        <source>%1: %2 of %3 rolls, %4%, fair dice %5%</source>
        <translation>%1: %3 atıştan %2, yüzde %4, adil zarlarda yüzde %5</translation>
    </message>
    <message>
        <source>%1, more than two standard errors away</source>
        <translation>%1, iki standart hatadan fazla uzak</translation>
    </message>
    <message numerus="yes">
        <source>%1 values are no rolls</source>
        <translation>
            <numerusform>%1 değer atış değil</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RunControls</name>
    <message>
        <source>Stop &amp;Auto-Roll</source>
        <translation>&amp;Auto-Roll durdur</translation>
    </message>
    <message>
        <source>Stop &amp;Turbo-Roll</source>
        <translation>&amp;Turbo-Roll durdur</translation>
    </message>
    <message>
        <source>Start &amp;Auto-Roll</source>
        <translation>&amp;Auto-Roll başlat</translation>
    </message>
    <message>
        <source>Start &amp;Turbo-Roll</source>
        <translation>&amp;Turbo-Roll başlat</translation>
    </message>
    <message>
        <source>Auto-Roll</source>
        <translation>Auto-Roll</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Tam hız</translation>
    </message>
    <message>
        <source>%1 s a roll</source>
        <translation>%1 s/atış</translation>
    </message>
</context>
<context>
    <name>ScriptLexer</name>
    <message>
        <source>Text</source>
        <translation>Metin</translation>
    </message>
    <message>
        <source>Logic</source>
        <translation>Mantık</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Değişken</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>İşlev</translation>
    </message>
    <message>
        <source>Modifier</source>
        <translation>Niteleyici</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Eylem</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Sayı</translation>
    </message>
    <message>
        <source>Sign</source>
        <translation>İşaret</translation>
    </message>
    <message>
        <source>Text in quotes</source>
        <translation>Tırnak içinde metin</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Açıklama</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Oyuncu</translation>
    </message>
    <message>
        <source>Unknown word</source>
        <translation>Bilinmeyen sözcük</translation>
    </message>
</context>
<context>
    <name>Sounds</name>
    <message>
        <source>Missing sound files: %1</source>
        <translation>Eksik ses dosyaları: %1</translation>
    </message>
</context>
<context>
    <name>TableAccessible</name>
    <message>
        <source>%1, left end</source>
        <translation>%1, sol uç</translation>
    </message>
    <message>
        <source>%1, right end</source>
        <translation>%1, sağ uç</translation>
    </message>
    <message>
        <source>Seat %1, open</source>
        <translation>Yer %1, boş</translation>
    </message>
    <message>
        <source>Seat %1, %2</source>
        <translation>Yer %1, %2</translation>
    </message>
    <message>
        <source>Checks of %1 on %2</source>
        <translation>%1 oyuncusunun %2 üstündeki fişleri</translation>
    </message>
    <message>
        <source>Last roll</source>
        <translation>Son atış</translation>
    </message>
    <message>
        <source>Take down</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Bahis koy</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Seç</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Katıl</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4)</source>
        <translation>Atış %1: %2 (%3-%4)</translation>
    </message>
    <message>
        <source>seven-out, the point was %1</source>
        <translation>seven-out, point %1 idi</translation>
    </message>
    <message>
        <source>the point %1 is made</source>
        <translation>%1 point&apos;i yapıldı</translation>
    </message>
    <message>
        <source>the point is %1</source>
        <translation>point %1</translation>
    </message>
    <message>
        <source>the point stays %1</source>
        <translation>point %1 kalır</translation>
    </message>
    <message>
        <source>%1 won %2</source>
        <translation>%1, %2 kazandı</translation>
    </message>
    <message>
        <source>%1 lost %2</source>
        <translation>%1, %2 kaybetti</translation>
    </message>
</context>
<context>
    <name>TableCommands</name>
    <message>
        <source>Carrying %1</source>
        <translation>%1 elde</translation>
    </message>
    <message>
        <source>Moving %1</source>
        <translation>%1 yer değiştiriyor</translation>
    </message>
    <message>
        <source>Next click: call a bet ON</source>
        <translation>Sonraki tıklama: bahsi ON ilan et</translation>
    </message>
    <message>
        <source>Next click: call a bet OFF</source>
        <translation>Sonraki tıklama: bahsi OFF ilan et</translation>
    </message>
    <message>
        <source>Next click: buy a Place bet</source>
        <translation>Sonraki tıklama: Place bahsini satın al</translation>
    </message>
    <message>
        <source>Next click: remove a bet</source>
        <translation>Sonraki tıklama: bir bahsi kaldır</translation>
    </message>
    <message>
        <source>Next click: take a bet to move it</source>
        <translation>Sonraki tıklama: taşımak için bir bahis al</translation>
    </message>
    <message>
        <source>Click: bets %1</source>
        <translation>Tıklama: %1 koyar</translation>
    </message>
    <message>
        <source>Drag: moves it, off the felt takes it down; Delete and a click too</source>
        <translation>Sürükleme: taşır, çuhanın dışında kaldırır; Delete ve tıklama da</translation>
    </message>
    <message>
        <source>Right click: rolls</source>
        <translation>Sağ tıklama: zar atar</translation>
    </message>
    <message>
        <source>No bet has ridden in this session</source>
        <translation>Bu oturumda hiçbir bahis oynanmadı</translation>
    </message>
    <message>
        <source>Expected of the bets made: %1</source>
        <translation>Konan bahislerden beklenen: %1</translation>
    </message>
    <message>
        <source>Came: %1</source>
        <translation>Gelen: %1</translation>
    </message>
    <message>
        <source>Luck: %1, %2 standard deviations</source>
        <translation>Şans: %1, %2 standart sapma</translation>
    </message>
    <message>
        <source>Rolls that were not counted: %1</source>
        <translation>Sayılmayan atışlar: %1</translation>
    </message>
</context>
<context>
    <name>TableLayout</name>
    <message>
        <source>PAYS</source>
        <translation>ÖDER</translation>
    </message>
    <message>
        <source>HOPS</source>
        <translation>HOPS</translation>
    </message>
    <message>
        <source>%1  PAIRS %2</source>
        <extracomment>On the felt: what a hop pays, and what a pair pays.</extracomment>
        <translation>%1  ÇİFTLER %2</translation>
    </message>
    <message>
        <source>ONE ROLL</source>
        <translation>TEK ATIŞ</translation>
    </message>
    <message>
        <source>HARDWAYS</source>
        <translation>HARDWAYS</translation>
    </message>
    <message>
        <source>SIDE BETS</source>
        <translation>YAN BAHİSLER</translation>
    </message>
</context>
<context>
    <name>TableTouch</name>
    <message>
        <source>Bet %1</source>
        <translation>%1 koy</translation>
    </message>
    <message>
        <source>Take down</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Taşı</translation>
    </message>
    <message>
        <source>Call ON</source>
        <translation>ON ilan et</translation>
    </message>
    <message>
        <source>Call OFF</source>
        <translation>OFF ilan et</translation>
    </message>
    <message>
        <source>Buy</source>
        <translation>Satın al</translation>
    </message>
    <message>
        <source>Roll the dice</source>
        <translation>Zar at</translation>
    </message>
</context>
<context>
    <name>ToolMenu</name>
    <message>
        <source>&amp;Print ...</source>
        <translation>&amp;Yazdır ...</translation>
    </message>
    <message>
        <source>Print pre&amp;view ...</source>
        <translation>Baskı &amp;önizleme ...</translation>
    </message>
    <message>
        <source>Save as P&amp;DF ...</source>
        <translation>P&amp;DF olarak kaydet ...</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>Tümünü k&amp;opyala</translation>
    </message>
    <message>
        <source>&amp;Export table (CSV) ...</source>
        <translation>&amp;Tabloyu dışa aktar (CSV) ...</translation>
    </message>
    <message>
        <source>Export p&amp;icture (PNG) ...</source>
        <translation>&amp;Resmi dışa aktar (PNG) ...</translation>
    </message>
    <message>
        <source>Export drawin&amp;g (SVG) ...</source>
        <translation>Ç&amp;izimi dışa aktar (SVG) ...</translation>
    </message>
    <message>
        <source>Dock at the &amp;right</source>
        <translation>&amp;Sağa yerleştir</translation>
    </message>
    <message>
        <source>Dock &amp;below</source>
        <translation>&amp;Alta yerleştir</translation>
    </message>
    <message>
        <source>Dock at the &amp;left</source>
        <translation>So&amp;la yerleştir</translation>
    </message>
    <message>
        <source>&amp;Window of its own</source>
        <translation>K&amp;endi penceresi</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>Ka&amp;pat</translation>
    </message>
    <message>
        <source>&amp;Output</source>
        <translation>Çı&amp;ktı</translation>
    </message>
    <message>
        <source>P&amp;lace</source>
        <translation>&amp;Yer</translation>
    </message>
</context>
<context>
    <name>tessaryn::AdjustEdit</name>
    <message>
        <source>%1: operator</source>
        <translation>%1: işlem</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>artı</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>eksi</translation>
    </message>
    <message>
        <source>times</source>
        <translation>çarpı</translation>
    </message>
    <message>
        <source>divided by</source>
        <translation>bölü</translation>
    </message>
    <message>
        <source>%1: amount</source>
        <translation>%1: tutar</translation>
    </message>
    <message>
        <source>%1: unit</source>
        <translation>%1: birim</translation>
    </message>
    <message>
        <source>(number)</source>
        <translation>(sayı)</translation>
    </message>
    <message>
        <source>dollars</source>
        <translation>dolar</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>yüzde</translation>
    </message>
    <message>
        <source>%1 units</source>
        <translation>%1 birimi</translation>
    </message>
</context>
<context>
    <name>tessaryn::AdvantagePage</name>
    <message>
        <source>by the point</source>
        <translation>point&apos;e göre</translation>
    </message>
    <message>
        <source>in shares</source>
        <translation>paylarda</translation>
    </message>
    <message>
        <source>by its table</source>
        <translation>tablosuna göre</translation>
    </message>
    <message>
        <source>Advantage</source>
        <translation>Avantaj</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Bahis</translation>
    </message>
    <message>
        <source>EV/Roll</source>
        <translation>BD/atış</translation>
    </message>
    <message>
        <source>StDev/Roll</source>
        <translation>SS/atış</translation>
    </message>
    <message>
        <source>EV/Dec</source>
        <translation>BD/karar</translation>
    </message>
    <message>
        <source>StDev/Dec</source>
        <translation>SS/karar</translation>
    </message>
    <message>
        <source>EV/Hour</source>
        <translation>BD/saat</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Masada</translation>
    </message>
    <message>
        <source>Up/Hour</source>
        <translation>Masada/saat</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Oturum</translation>
    </message>
    <message>
        <source>Rolls/Dec</source>
        <translation>Atış/karar</translation>
    </message>
    <message>
        <source>Time/Dec</source>
        <translation>Süre/karar</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Öder</translation>
    </message>
    <message>
        <source>EV and deviation in dollars on the bet amount. Up: what the player has on the table, and what it is expected to bring in an hour. Session: what was to be expected of the bets that this session decided.</source>
        <translation>Bahis tutarı için dolar olarak beklenen değer ve sapma. Masada: oyuncunun masada olanı ve bir saatte ondan beklenen. Oturum: bu oturumda sonuçlanan bahislerden beklenen.</translation>
    </message>
    <message>
        <source>Bet amount</source>
        <translation>Bahis tutarı</translation>
    </message>
    <message>
        <source>Bet &amp;amount</source>
        <translation>Bahis &amp;tutarı</translation>
    </message>
    <message>
        <source>&amp;Player</source>
        <translation>&amp;Oyuncu</translation>
    </message>
    <message>
        <source>Sort &amp;by</source>
        <translation>&amp;Sırala</translation>
    </message>
    <message>
        <source>&amp;Only bets that are up</source>
        <translation>&amp;Yalnız masadaki bahisler</translation>
    </message>
    <message>
        <source>Include &amp;zero outcomes</source>
        <translation>Sı&amp;fır sonuçları da say</translation>
    </message>
    <message>
        <source>Show &amp;misc data</source>
        <translation>&amp;Diğer bilgiler</translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation>Masada oyuncu yok.</translation>
    </message>
    <message>
        <source>%1 has no bets up.</source>
        <translation>%1 oyuncusunun masada bahsi yok.</translation>
    </message>
    <message>
        <source>At %1 rolls an hour the bets that %2 has up are expected to bring %3 an hour</source>
        <translation>Saatte %1 atışta %2 oyuncusunun bahislerinden saatte %3 beklenir</translation>
    </message>
    <message>
        <source> Odds are counted while a point is on, and Come and Don&apos;t Come bets are made while one is.</source>
        <translation> Odds point varken sayılır; Come ve Don&apos;t Come da o zaman konur.</translation>
    </message>
    <message>
        <source> How far an hour strays from that is left out: what %1 has in common with the other bets can&apos;t be told.</source>
        <translation> Bir saatin bundan ne kadar sapacağı bırakıldı: %1 bahsinin ötekilerle ortak yanı söylenemez.</translation>
    </message>
    <message>
        <source>No bet has been decided in this session.</source>
        <translation>Bu oturumda hiçbir bahis sonuçlanmadı.</translation>
    </message>
    <message>
        <source>This session decided %1 of bets: %2 was to be expected of them, %3 it came to.</source>
        <translation>Bu oturumda %1 tutarında bahis sonuçlandı: beklenen %2, gelen %3.</translation>
    </message>
    <message>
        <source>%1% of all</source>
        <translation>tümünden yüzde %1</translation>
    </message>
    <message>
        <source>%1% of winners</source>
        <translation>kazananlardan yüzde %1</translation>
    </message>
    <message>
        <source>Dice: %1. A roll takes %2. Buy vig: %3. Lay vig: %4. Bar: %5. %6</source>
        <translation>Zarlar: %1. Bir atış %2 sürer. Buy vig: %3. Lay vig: %4. Yasak: %5. %6</translation>
    </message>
    <message>
        <source>percentage dice</source>
        <translation>yüzdeli zarlar</translation>
    </message>
    <message>
        <source>fair</source>
        <translation>adil</translation>
    </message>
    <message>
        <source>Rolls that leave a bet in place count as decisions.</source>
        <translation>Bahsi yerinde bırakan atışlar karar sayılır.</translation>
    </message>
    <message>
        <source>Only wins and losses count as decisions.</source>
        <translation>Yalnız kazanç ve kayıplar karar sayılır.</translation>
    </message>
    <message>
        <source>%1, give or take %2</source>
        <translation>%1, %2 az ya da çok</translation>
    </message>
</context>
<context>
    <name>tessaryn::AmountSelector</name>
    <message>
        <source>Bet amount</source>
        <translation>Bahis tutarı</translation>
    </message>
    <message>
        <source>Amount that a click bets</source>
        <translation>Bir tıklamanın koyduğu tutar</translation>
    </message>
    <message>
        <source>The amount that a click bets</source>
        <translation>Bir tıklamanın koyduğu tutar</translation>
    </message>
    <message>
        <source>Bet %1 a click</source>
        <translation>Tıklama başına %1 koy</translation>
    </message>
</context>
<context>
    <name>tessaryn::AtmScreen</name>
    <message>
        <source>ATM</source>
        <translation>Bankamatik</translation>
    </message>
    <message>
        <source>Bankroll:</source>
        <translation>Bankroll:</translation>
    </message>
    <message>
        <source>On the table:</source>
        <translation>Masada:</translation>
    </message>
    <message>
        <source>Rail:</source>
        <translation>Ray:</translation>
    </message>
    <message>
        <source>Drawn from the ATM:</source>
        <translation>Bankamatikten çekilen:</translation>
    </message>
    <message>
        <source>Allow &amp;negative bankroll</source>
        <translation>&amp;Eksi bankroll&apos;a izin ver</translation>
    </message>
    <message>
        <source>The ATM is switched off in the configuration.</source>
        <translation>Bankamatik ayarlarda kapatılmış.</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>&amp;Tutar:</translation>
    </message>
    <message>
        <source>&amp;Withdraw</source>
        <translation>&amp;Çek</translation>
    </message>
    <message>
        <source>&amp;Deposit</source>
        <translation>&amp;Yatır</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Kapat</translation>
    </message>
</context>
<context>
    <name>tessaryn::AutoPlayScreen</name>
    <message>
        <source>Auto-&amp;take full odds</source>
        <translation>Tam odds&apos;u otomatik &amp;al</translation>
    </message>
    <message>
        <source>On Pass Line and Come, when a point is set and when the flat bet changes</source>
        <translation>Pass Line ve Come&apos;da, point konunca ve temel bahis değişince</translation>
    </message>
    <message>
        <source>Auto-&amp;lay full odds</source>
        <translation>Tam odds&apos;u otomatik &amp;ver</translation>
    </message>
    <message>
        <source>On Don&apos;t Pass and Don&apos;t Come, when a point is set and when the flat bet changes</source>
        <translation>Don&apos;t Pass ve Don&apos;t Come&apos;da, point konunca ve temel bahis değişince</translation>
    </message>
    <message>
        <source>Auto-&amp;down Place bets</source>
        <translation>Place bahislerini otomatik &amp;indir</translation>
    </message>
    <message>
        <source>Place and Buy bets on the number of a line or Come bet come down</source>
        <translation>Çizgi ya da Come bahsinin sayısındaki Place ve Buy bahisleri iner</translation>
    </message>
    <message>
        <source>Auto-&amp;pass the dice</source>
        <translation>Zarları otomatik &amp;devret</translation>
    </message>
    <message>
        <source>The player never shoots</source>
        <translation>Oyuncu hiç atmaz</translation>
    </message>
    <message>
        <source>Place and Buy:</source>
        <translation>Place ve Buy:</translation>
    </message>
    <message>
        <source>Do side, others:</source>
        <translation>Do tarafı, diğerleri:</translation>
    </message>
    <message>
        <source>Don&apos;t side:</source>
        <translation>Don&apos;t tarafı:</translation>
    </message>
    <message>
        <source>Lay:</source>
        <translation>Lay:</translation>
    </message>
    <message>
        <source> Manual</source>
        <translation> Elle</translation>
    </message>
    <message>
        <source> Auto w/ minor correction</source>
        <translation> Otomatik, küçük düzeltmeyle</translation>
    </message>
    <message>
        <source> Auto w/ color correction</source>
        <translation> Otomatik, renk düzeltmesiyle</translation>
    </message>
    <message>
        <source>Auto-Play</source>
        <translation>Auto-Play</translation>
    </message>
    <message>
        <source>Pla&amp;yer:</source>
        <translation>&amp;Oyuncu:</translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation>Masada oyuncu yok.</translation>
    </message>
    <message>
        <source>Winning bets</source>
        <translation>Kazanan bahisler</translation>
    </message>
    <message>
        <source>Losing bets</source>
        <translation>Kaybeden bahisler</translation>
    </message>
    <message>
        <source>Bet amounts that pay whole</source>
        <translation>Tam ödeyen tutarlar</translation>
    </message>
    <message>
        <source>By the change</source>
        <translation>Para üstüne göre</translation>
    </message>
    <message>
        <source>Upward</source>
        <translation>Yukarı</translation>
    </message>
    <message>
        <source>Downward</source>
        <translation>Aşağı</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Otomatik</translation>
    </message>
    <message>
        <source>Work on come-out</source>
        <translation>Come-out&apos;ta çalış</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tümünü seç</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Kapat</translation>
    </message>
</context>
<context>
    <name>tessaryn::BankrollGraphScreen</name>
    <message>
        <source>Bankroll</source>
        <translation>Bankroll</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Oyuncu</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>Modes, averages, colors, printing</source>
        <translation>Kipler, ortalamalar, renkler, yazdırma</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Yüksek</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Şimdi</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Düşük</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Oturum</translation>
    </message>
    <message>
        <source>Reference line %1</source>
        <translation>Referans çizgisi %1</translation>
    </message>
    <message>
        <source>Bankroll dif</source>
        <translation>Bankroll farkı</translation>
    </message>
    <message>
        <source>Graph up</source>
        <translation>Grafik yukarı</translation>
    </message>
    <message>
        <source>Graph down</source>
        <translation>Grafik aşağı</translation>
    </message>
    <message>
        <source>Smaller scale</source>
        <translation>Daha küçük ölçek</translation>
    </message>
    <message>
        <source>- Scale</source>
        <translation>- Ölçek</translation>
    </message>
    <message>
        <source>Larger scale</source>
        <translation>Daha büyük ölçek</translation>
    </message>
    <message>
        <source>Scale +</source>
        <translation>Ölçek +</translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation>Koşunun hızı</translation>
    </message>
    <message>
        <source>Start Turbo-Roll</source>
        <translation>Turbo-Roll başlat</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>hızlı</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>yavaş</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 atış</numerusform>
        </translation>
    </message>
    <message>
        <source>@ %1 rolls/hr</source>
        <translation>saatte %1 atışla</translation>
    </message>
    <message>
        <source>= %1 sim hrs</source>
        <translation>= %1 sim. saat</translation>
    </message>
    <message>
        <source>Rolls diff</source>
        <translation>Atış farkı</translation>
    </message>
    <message>
        <source>Plot &amp;type</source>
        <translation>Çizim &amp;türü</translation>
    </message>
    <message>
        <source>&amp;Page</source>
        <translation>&amp;Sayfa</translation>
    </message>
    <message>
        <source>&amp;Scroll</source>
        <translation>&amp;Kayan</translation>
    </message>
    <message>
        <source>Ad&amp;just scale</source>
        <translation>Ölçeği &amp;ayarla</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Elle</translation>
    </message>
    <message>
        <source>Auto-&amp;shift </source>
        <translation>Otomatik &amp;kaydır </translation>
    </message>
    <message>
        <source>Auto-shift with &amp;expanding scale</source>
        <translation>Otomatik kaydır, &amp;genişleyen ölçek</translation>
    </message>
    <message>
        <source>Auto-shift with s&amp;nap-back scale</source>
        <translation>Otomatik kaydır, geri &amp;dönen ölçek</translation>
    </message>
    <message>
        <source>Display &amp;grid lines</source>
        <translation>&amp;Izgara çizgilerini göster</translation>
    </message>
    <message>
        <source>Display &amp;reference lines</source>
        <translation>&amp;Referans çizgilerini göster</translation>
    </message>
    <message>
        <source>Display moving &amp;average</source>
        <translation>&amp;Hareketli ortalamayı göster</translation>
    </message>
    <message>
        <source>Set &amp;moving average ...</source>
        <translation>Hareketli &amp;ortalamayı ayarla ...</translation>
    </message>
    <message>
        <source>&amp;Players together</source>
        <translation>Oyuncular &amp;birlikte</translation>
    </message>
    <message>
        <source>Graph st&amp;yle</source>
        <translation>Gra&amp;fik biçimi</translation>
    </message>
    <message>
        <source>&amp;Plain</source>
        <translation>&amp;Düz</translation>
    </message>
    <message>
        <source>&amp;Striped</source>
        <translation>Çi&amp;zgili</translation>
    </message>
    <message>
        <source>S&amp;olid</source>
        <translation>D&amp;olu</translation>
    </message>
    <message>
        <source>Set &amp;color</source>
        <translation>Ren&amp;kler</translation>
    </message>
    <message>
        <source>&amp;Background ...</source>
        <translation>Arka &amp;plan ...</translation>
    </message>
    <message>
        <source>&amp;Text ...</source>
        <translation>&amp;Metin ...</translation>
    </message>
    <message>
        <source>&amp;Grid lines ...</source>
        <translation>&amp;Izgara ...</translation>
    </message>
    <message>
        <source>&amp;Start of the session ...</source>
        <translation>&amp;Oturumun başı ...</translation>
    </message>
    <message>
        <source>Bank&amp;roll ...</source>
        <translation>Bank&amp;roll ...</translation>
    </message>
    <message>
        <source>&amp;Area under the bankroll ...</source>
        <translation>Bankroll altındaki al&amp;an ...</translation>
    </message>
    <message>
        <source>&amp;Moving average ...</source>
        <translation>&amp;Hareketli ortalama ...</translation>
    </message>
    <message>
        <source>Reference line &amp;1 ...</source>
        <translation>Referans çizgisi &amp;1 ...</translation>
    </message>
    <message>
        <source>Reference line &amp;2 ...</source>
        <translation>Referans çizgisi &amp;2 ...</translation>
    </message>
    <message>
        <source>&amp;Pointer ...</source>
        <translation>&amp;İmleç ...</translation>
    </message>
    <message>
        <source>&amp;Default colors</source>
        <translation>&amp;Varsayılan renkler</translation>
    </message>
    <message>
        <source>Print &amp;now</source>
        <translation>Şimdi &amp;yazdır</translation>
    </message>
    <message>
        <source>A&amp;uto-print</source>
        <translation>Otomatik yaz&amp;dır</translation>
    </message>
    <message>
        <source>Grap&amp;hs on a page</source>
        <translation>&amp;Sayfadaki grafik sayısı</translation>
    </message>
    <message>
        <source>Set Auto-Roll time &amp;delay ...</source>
        <translation>Auto-Roll &amp;gecikmesi ...</translation>
    </message>
    <message>
        <source>Set Auto-St&amp;op ...</source>
        <translation>Otomatik d&amp;urma ...</translation>
    </message>
    <message>
        <source>Show &amp;logged messages</source>
        <translation>&amp;Not edilen iletileri göster</translation>
    </message>
</context>
<context>
    <name>tessaryn::Board</name>
    <message>
        <source>Skip</source>
        <translation>Geç</translation>
    </message>
    <message>
        <source>The first steps aren&apos;t shown again</source>
        <translation>İlk adımlar bir daha gösterilmez</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>bana sor</translation>
    </message>
    <message>
        <source>leave the bet, take the winnings</source>
        <translation>bahsi bırak, kazancı al</translation>
    </message>
    <message>
        <source>POINT</source>
        <translation>POINT</translation>
    </message>
    <message>
        <source>COME-OUT</source>
        <translation>COME-OUT</translation>
    </message>
    <message>
        <source>Last roll</source>
        <translation>Son atış</translation>
    </message>
    <message>
        <source>When a bet wins:</source>
        <translation>Bir bahis kazanınca:</translation>
    </message>
    <message>
        <source>Turbo-Roll</source>
        <translation>Turbo-Roll</translation>
    </message>
    <message>
        <source>Auto-Roll</source>
        <translation>Auto-Roll</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ON</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Click an open position on the rail to add a player.</source>
        <translation>Bir oyuncu eklemek için raydaki açık bir pozisyona tıklayın.</translation>
    </message>
    <message>
        <source>No roll yet</source>
        <translation>Henüz atış yok</translation>
    </message>
    <message>
        <source>LAST %1</source>
        <translation>SON %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 notes:</source>
        <translation>
            <numerusform>%1 not:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::CheckStackList</name>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>Place %1 at the rail</source>
        <translation>%1 raya konsun</translation>
    </message>
</context>
<context>
    <name>tessaryn::CheckStackView</name>
    <message>
        <source>Value of CheckStack %1</source>
        <translation>CheckStack %1 değeri</translation>
    </message>
    <message>
        <source>Name of CheckStack %1</source>
        <translation>CheckStack %1 adı</translation>
    </message>
</context>
<context>
    <name>tessaryn::CheckStacksScreen</name>
    <message>
        <source>CheckStacks</source>
        <translation>CheckStacks</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Oyuncu</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Seçenekler</translation>
    </message>
    <message>
        <source>Undo, clipboard, deletions, the stacks on the table</source>
        <translation>Geri al, pano, silme, masadaki yığınlar</translation>
    </message>
    <message>
        <source>On the table</source>
        <translation>Masada</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Kabul</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Und&amp;o	Ctrl+Z</source>
        <translation>&amp;Geri al	Ctrl+Z</translation>
    </message>
    <message>
        <source>&amp;Redo	Ctrl+Y</source>
        <translation>&amp;Yinele	Ctrl+Y</translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation>K&amp;es	Ctrl+X</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Kopyala	Ctrl+C</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>Ya&amp;pıştır	Ctrl+V</translation>
    </message>
    <message>
        <source>&amp;Delete	Del</source>
        <translation>&amp;Sil	Del</translation>
    </message>
    <message>
        <source>Delete &amp;all</source>
        <translation>&amp;Tümünü sil</translation>
    </message>
    <message>
        <source>Delete all val&amp;ues</source>
        <translation>Tüm &amp;değerleri sil</translation>
    </message>
    <message>
        <source>Delete all &amp;names</source>
        <translation>Tüm &amp;adları sil</translation>
    </message>
    <message>
        <source>&amp;Set visible checkstacks</source>
        <translation>Gör&amp;ünen CheckStack&apos;leri seç</translation>
    </message>
    <message>
        <source>Display &amp;zero values</source>
        <translation>Sıfır değe&amp;rleri göster</translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation>Yazı &amp;boyutu</translation>
    </message>
    <message>
        <source>&amp;Desktop&apos;s</source>
        <translation>&amp;Masaüstününki</translation>
    </message>
    <message>
        <source>CheckStacks of %1</source>
        <translation>%1 oyuncusunun CheckStack&apos;leri</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
</context>
<context>
    <name>tessaryn::CompsPage</name>
    <message>
        <source>Total comp action</source>
        <translation>Toplam comp hacmi</translation>
    </message>
    <message>
        <source>Comp bets decided</source>
        <translation>Sonuçlanan comp bahisleri</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Atış</translation>
    </message>
    <message>
        <source>Expected result</source>
        <translation>Beklenen sonuç</translation>
    </message>
    <message>
        <source>Avg action x time</source>
        <translation>Ortalama hacim x süre</translation>
    </message>
    <message>
        <source>Comp value</source>
        <translation>Comp değeri</translation>
    </message>
    <message>
        <source>Comps so far</source>
        <translation>Şimdiye dek comp</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Oyuncu</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Kapsam</translation>
    </message>
    <message>
        <source>Bets figured in comps</source>
        <translation>Comp&apos;lara sayılan bahisler</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Bahis</translation>
    </message>
    <message>
        <source>Comps</source>
        <translation>Comp&apos;lar</translation>
    </message>
    <message>
        <source>Wagered</source>
        <translation>Konan</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Beklenen</translation>
    </message>
    <message>
        <source>A double click or the space bar changes a bet.</source>
        <translation>Çift tıklama ya da boşluk tuşu bir bahsi değiştirir.</translation>
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
        <source>Select all</source>
        <translation>Tümünü seç</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Sırala</translation>
    </message>
</context>
<context>
    <name>tessaryn::ConfigurationScreen</name>
    <message>
        <source>House</source>
        <translation>Kasa</translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Bahisler</translation>
    </message>
    <message>
        <source>Payoffs</source>
        <translation>Ödemeler</translation>
    </message>
    <message>
        <source>Advantage</source>
        <translation>Avantaj</translation>
    </message>
    <message>
        <source>Comps</source>
        <translation>Comp&apos;lar</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Masa</translation>
    </message>
    <message>
        <source>Bankroll</source>
        <translation>Bankroll</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Renkler</translation>
    </message>
    <message>
        <source>Probability</source>
        <translation>Olasılık</translation>
    </message>
    <message>
        <source>Generator</source>
        <translation>Üreteç</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ses</translation>
    </message>
    <message>
        <source>Misc</source>
        <translation>Diğer</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Ayarlarda ara</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Sekmeler</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Kapat</translation>
    </message>
    <message>
        <source>Not taken yet: %1. %2</source>
        <translation>Henüz alınmadı: %1. %2</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Sekme</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ayar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>A double click or the space bar changes a bet. New players take this as they buy in.</source>
        <translation>Çift tıklama ya da boşluk tuşu bir bahsi değiştirir. Yeni oyuncular girerken bunu alır.</translation>
    </message>
    <message>
        <source> - Yes</source>
        <translation> - Evet</translation>
    </message>
    <message>
        <source> - No</source>
        <translation> - Hayır</translation>
    </message>
    <message>
        <source>Work on come-out roll</source>
        <translation>Come-out&apos;ta çalış</translation>
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
        <source>Select all</source>
        <translation>Tümünü seç</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Varsayılan</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Fişler</translation>
    </message>
    <message>
        <source>Restore default denominations</source>
        <translation>Varsayılan değerlere dön</translation>
    </message>
    <message>
        <source>Amount to add or subtract</source>
        <translation>Eklenecek ya da çıkarılacak tutar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Çıkar</translation>
    </message>
    <message>
        <source>Add or subtract</source>
        <translation>Ekle ya da çıkar</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Oyuncu</translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation>Masada oyuncu yok.</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sesler</translation>
    </message>
    <message>
        <source>Stick person</source>
        <translation>Stickman</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Zarlar</translation>
    </message>
    <message>
        <source>Wins</source>
        <translation>Kazançlar</translation>
    </message>
    <message>
        <source>&lt; none &gt;</source>
        <translation>&lt; yok &gt;</translation>
    </message>
    <message>
        <source>Stick person 1</source>
        <translation>Stickman 1</translation>
    </message>
    <message>
        <source>&lt; random &gt;</source>
        <translation>&lt; rastgele &gt;</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>Dene</translation>
    </message>
    <message>
        <source>Try: %1</source>
        <translation>Dene: %1</translation>
    </message>
    <message>
        <source>The program&apos;s sound files aren&apos;t there.</source>
        <translation>Programın ses dosyaları yerinde değil.</translation>
    </message>
    <message>
        <source>Rolls / hr</source>
        <translation>Atış / saat</translation>
    </message>
    <message>
        <source>Rolls / min</source>
        <translation>Atış / dk</translation>
    </message>
    <message>
        <source>Rolls / sec</source>
        <translation>Atış / sn</translation>
    </message>
    <message>
        <source>Hrs / roll</source>
        <translation>Saat / atış</translation>
    </message>
    <message>
        <source>Mins / roll</source>
        <translation>Dk / atış</translation>
    </message>
    <message>
        <source>Secs / roll</source>
        <translation>Sn / atış</translation>
    </message>
    <message>
        <source>How the rate is shown</source>
        <translation>Hızın nasıl gösterildiği</translation>
    </message>
    <message>
        <source>Simulated roll rate</source>
        <translation>Simüle edilen atış hızı</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Sınırlar</translation>
    </message>
    <message>
        <source>Odds</source>
        <translation>Odds</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Kurallar</translation>
    </message>
    <message>
        <source>Buy bets</source>
        <translation>Buy bahisleri</translation>
    </message>
    <message>
        <source>Lay bets</source>
        <translation>Lay bahisleri</translation>
    </message>
    <message>
        <source>Bets on the table</source>
        <translation>Masadaki bahisler</translation>
    </message>
    <message>
        <source>Stacks and amounts</source>
        <translation>Yığınlar ve tutarlar</translation>
    </message>
    <message>
        <source>New players</source>
        <translation>Yeni oyuncular</translation>
    </message>
    <message>
        <source>ATM</source>
        <translation>Bankamatik</translation>
    </message>
    <message>
        <source>All sounds</source>
        <translation>Tüm sesler</translation>
    </message>
    <message>
        <source>Messages to show</source>
        <translation>Gösterilecek iletiler</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>İmleç</translation>
    </message>
    <message>
        <source>Font size of the screens</source>
        <translation>Ekranların yazı boyutu</translation>
    </message>
    <message>
        <source>Dice on the table</source>
        <translation>Masadaki zarlar</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Yazıcı</translation>
    </message>
    <message>
        <source>Figure comps based on:</source>
        <translation>Comp&apos;ların dayanağı:</translation>
    </message>
    <message>
        <source>For every new session:</source>
        <translation>Her yeni oturumda:</translation>
    </message>
    <message>
        <source>dollars</source>
        <translation>dolar</translation>
    </message>
    <message>
        <source>x flat bet</source>
        <translation>x düz bahis</translation>
    </message>
    <message>
        <source> Bar 12</source>
        <translation> Yasak 12</translation>
    </message>
    <message>
        <source> Bar 2</source>
        <translation> Yasak 2</translation>
    </message>
    <message>
        <source> Small</source>
        <translation> Küçük</translation>
    </message>
    <message>
        <source> Medium</source>
        <translation> Orta</translation>
    </message>
    <message>
        <source> Large</source>
        <translation> Büyük</translation>
    </message>
    <message>
        <source>Minimum bet</source>
        <translation>En az bahis</translation>
    </message>
    <message>
        <source>Minimum prop bet</source>
        <translation>En az proposition bahsi</translation>
    </message>
    <message>
        <source>Maximum bet</source>
        <translation>En çok bahis</translation>
    </message>
    <message>
        <source>Max prop bet payoff</source>
        <translation>En çok proposition ödemesi</translation>
    </message>
    <message>
        <source>Maximum odds bet</source>
        <translation>En çok odds bahsi</translation>
    </message>
    <message>
        <source>Odds on 4 and 10</source>
        <translation>4 ve 10&apos;da odds</translation>
    </message>
    <message>
        <source>Odds on 5 and 9</source>
        <translation>5 ve 9&apos;da odds</translation>
    </message>
    <message>
        <source>Odds on 6 and 8</source>
        <translation>6 ve 8&apos;de odds</translation>
    </message>
    <message>
        <source>Odds calculation</source>
        <translation>Odds hesabı</translation>
    </message>
    <message>
        <source>To shoot</source>
        <translation>Atmak için</translation>
    </message>
    <message>
        <source>Don&apos;t side</source>
        <translation>Don&apos;t tarafı</translation>
    </message>
    <message>
        <source>Allow Put bets</source>
        <translation>Put bahislerine izin ver</translation>
    </message>
    <message>
        <source>Return abandoned bets</source>
        <translation>Bırakılan bahisleri geri ver</translation>
    </message>
    <message>
        <source>Vig</source>
        <translation>Vig</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Yuvarlama</translation>
    </message>
    <message>
        <source>Buy vig</source>
        <translation>Buy vig</translation>
    </message>
    <message>
        <source>Lay vig</source>
        <translation>Lay vig</translation>
    </message>
    <message>
        <source>Big 6 and Big 8</source>
        <translation>Big 6 ve Big 8</translation>
    </message>
    <message>
        <source>Midway bet</source>
        <translation>Midway bahsi</translation>
    </message>
    <message>
        <source>Special prop bets</source>
        <translation>Özel proposition&apos;lar</translation>
    </message>
    <message>
        <source>Fire bet</source>
        <translation>Fire bahsi</translation>
    </message>
    <message>
        <source>Max Fire bet</source>
        <translation>En çok Fire bahsi</translation>
    </message>
    <message>
        <source>Auto-arrange checks</source>
        <translation>Fişleri kendiliğinden diz</translation>
    </message>
    <message>
        <source>Use cents symbol below a dollar</source>
        <translation>Bir doların altında sent işareti</translation>
    </message>
    <message>
        <source>First check</source>
        <translation>Birinci fiş</translation>
    </message>
    <message>
        <source>Second check</source>
        <translation>İkinci fiş</translation>
    </message>
    <message>
        <source>Third check</source>
        <translation>Üçüncü fiş</translation>
    </message>
    <message>
        <source>Fourth check</source>
        <translation>Dördüncü fiş</translation>
    </message>
    <message>
        <source>Fifth check</source>
        <translation>Beşinci fiş</translation>
    </message>
    <message>
        <source>Allow negative bankroll</source>
        <translation>Eksi bankroll&apos;a izin ver</translation>
    </message>
    <message>
        <source>At a new session</source>
        <translation>Yeni oturumda</translation>
    </message>
    <message>
        <source>New session&apos;s bankroll</source>
        <translation>Yeni oturumun bankroll&apos;u</translation>
    </message>
    <message>
        <source>Bankroll offered</source>
        <translation>Önerilen bankroll</translation>
    </message>
    <message>
        <source>The ATM works</source>
        <translation>Bankamatik çalışır</translation>
    </message>
    <message>
        <source>Usual amount</source>
        <translation>Olağan tutar</translation>
    </message>
    <message>
        <source>Sounds of auto-bet scripts</source>
        <translation>Auto-Bet betiklerinin sesleri</translation>
    </message>
    <message>
        <source>Disable all sound</source>
        <translation>Tüm sesleri kapat</translation>
    </message>
    <message>
        <source>Info tips</source>
        <translation>Bilgi ipuçları</translation>
    </message>
    <message>
        <source>Snap to the default button of a box</source>
        <translation>Kutunun varsayılan düğmesine git</translation>
    </message>
    <message>
        <source>Print in colors</source>
        <translation>Renkli yazdır</translation>
    </message>
    <message>
        <source>Use true probabilities</source>
        <translation>Gerçek olasılıkları kullan</translation>
    </message>
    <message>
        <source>Comp rate</source>
        <translation>Comp oranı</translation>
    </message>
</context>
<context>
    <name>tessaryn::EventsLogScreen</name>
    <message>
        <source>Everything</source>
        <translation>Her şey</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Atışlar</translation>
    </message>
    <message>
        <source>Rolls, passes and misses</source>
        <translation>Atışlar, passes ve misses</translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Bahisler</translation>
    </message>
    <message>
        <source>Wins and losses</source>
        <translation>Kazanç ve kayıplar</translation>
    </message>
    <message>
        <source>Wins</source>
        <translation>Kazançlar</translation>
    </message>
    <message>
        <source>Losses</source>
        <translation>Kayıplar</translation>
    </message>
    <message>
        <source>Bankrolls</source>
        <translation>Bankroll&apos;lar</translation>
    </message>
    <message>
        <source>CheckStacks</source>
        <translation>CheckStacks</translation>
    </message>
    <message>
        <source>Shooters and hands</source>
        <translation>Atıcılar ve eller</translation>
    </message>
    <message>
        <source>Sessions, players, scripts</source>
        <translation>Oturumlar, oyuncular, betikler</translation>
    </message>
    <message>
        <source>Lo&amp;g</source>
        <translation>&amp;Günlük</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Yeni</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Aç ...</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>&amp;Farklı kaydet ...</translation>
    </message>
    <message>
        <source>&amp;Look at another log ...</source>
        <translation>&amp;Başka bir günlüğe bak ...</translation>
    </message>
    <message>
        <source>&amp;Back to the table&apos;s log</source>
        <translation>&amp;Masanın günlüğüne dön</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>A&amp;ra</translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation>A&amp;ra ...</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>&amp;Sonrakini bul</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>Ö&amp;ncekini bul</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>S&amp;eçenekler</translation>
    </message>
    <message>
        <source>Record &amp;events</source>
        <translation>&amp;Olayları kaydet</translation>
    </message>
    <message>
        <source>&amp;Rolls</source>
        <translation>&amp;Atışlar</translation>
    </message>
    <message>
        <source>&amp;Bet changes</source>
        <translation>&amp;Bahis değişiklikleri</translation>
    </message>
    <message>
        <source>Bets &amp;won</source>
        <translation>&amp;Kazanılan bahisler</translation>
    </message>
    <message>
        <source>Bets &amp;lost</source>
        <translation>Ka&amp;ybedilen bahisler</translation>
    </message>
    <message>
        <source>CheckS&amp;tack changes</source>
        <translation>Check&amp;Stack değişiklikleri</translation>
    </message>
    <message>
        <source>&amp;Passes and misses</source>
        <translation>&amp;Passes ve misses</translation>
    </message>
    <message>
        <source>S&amp;hooter changes</source>
        <translation>Atı&amp;cı değişiklikleri</translation>
    </message>
    <message>
        <source>Ban&amp;kroll changes</source>
        <translation>Bank&amp;roll değişiklikleri</translation>
    </message>
    <message>
        <source>Record &amp;all</source>
        <translation>Tümünü kay&amp;det</translation>
    </message>
    <message>
        <source>&amp;Deselect all</source>
        <translation>&amp;Hiçbirini kaydetme</translation>
    </message>
    <message>
        <source>&amp;Clear log when new sessions start</source>
        <translation>Yeni oturumda &amp;günlüğü boşalt</translation>
    </message>
    <message>
        <source>&amp;Scroll new rolls to the top</source>
        <translation>Yeni atışlar üst&amp;te</translation>
    </message>
    <message>
        <source>&amp;Follow the end</source>
        <translation>Sonu &amp;izle</translation>
    </message>
    <message>
        <source>Fon&amp;t</source>
        <translation>Ya&amp;zı</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Eğik</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Kalın</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>K&amp;üçük</translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation>&amp;Normal</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>&amp;Büyük</translation>
    </message>
    <message>
        <source>In&amp;active</source>
        <translation>Etkin &amp;değil</translation>
    </message>
    <message>
        <source>Kind of lines shown</source>
        <translation>Gösterilen satırların türü</translation>
    </message>
    <message>
        <source>Player whose lines are shown</source>
        <translation>Satırları gösterilen oyuncu</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Aranacak metin</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Önceki</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Öncekini bul</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Sonraki</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Sonrakini bul</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Dur</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Aramayı durdur</translation>
    </message>
    <message>
        <source>All players</source>
        <translation>Herkes</translation>
    </message>
    <message>
        <source>&amp;Active</source>
        <translation>&amp;Etkin</translation>
    </message>
    <message>
        <source>Events are recorded</source>
        <translation>Olaylar kaydediliyor</translation>
    </message>
    <message>
        <source>Events are not recorded</source>
        <translation>Olaylar kaydedilmiyor</translation>
    </message>
    <message>
        <source>Events Log (%1, only looked at)</source>
        <translation>Olay günlüğü (%1, yalnız bakılıyor)</translation>
    </message>
    <message>
        <source>Events Log</source>
        <translation>Olay günlüğü</translation>
    </message>
    <message>
        <source>Events Log (%1)</source>
        <translation>Olay günlüğü (%1)</translation>
    </message>
    <message>
        <source>No lines</source>
        <translation>Satır yok</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Satır %1 / %2</translation>
    </message>
    <message>
        <source>About line %1 of %2</source>
        <translation>Yaklaşık satır %1 / %2</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Olaylar</translation>
    </message>
    <message>
        <source>Tessaryn Events Log</source>
        <translation>Tessaryn olay günlüğü</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>yüzde %1</translation>
    </message>
    <message>
        <source>Print Events Log</source>
        <translation>Olay günlüğünü yazdır</translation>
    </message>
    <message>
        <source>%1 (%2% read)</source>
        <translation>%1 (yüzde %2 okundu)</translation>
    </message>
    <message>
        <source>Saving the log ...</source>
        <translation>Günlük kaydediliyor ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>tessaryn::EventsLogView</name>
    <message>
        <source>Lines of the Events Log</source>
        <translation>Olay günlüğünün satırları</translation>
    </message>
    <message>
        <source>Line at the top</source>
        <translation>En üstteki satır</translation>
    </message>
    <message>
        <source>Blanks to the left</source>
        <translation>Soldaki boşluklar</translation>
    </message>
    <message>
        <source>No such lines</source>
        <translation>Böyle satır yok</translation>
    </message>
    <message>
        <source>The log is empty</source>
        <translation>Günlük boş</translation>
    </message>
</context>
<context>
    <name>tessaryn::FindReplaceScreen</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>A&amp;ra:</translation>
    </message>
    <message>
        <source>Replace &amp;by:</source>
        <translation>Şununla &amp;değiştir:</translation>
    </message>
    <message>
        <source>Find ne&amp;xt</source>
        <translation>&amp;Sonrakini bul</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>D&amp;eğiştir</translation>
    </message>
    <message>
        <source>Replace &amp;all</source>
        <translation>&amp;Tümünü değiştir</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the script.</source>
        <translation>&quot;%1&quot; betikte yok.</translation>
    </message>
    <message numerus="yes">
        <source>%1 replaced</source>
        <translation>
            <numerusform>%1 değiştirildi</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::GeneratorPage</name>
    <message>
        <source>Mersenne Twister, 32 bits a number, a number for each die. The usual choice.</source>
        <translation>Mersenne Twister, sayı başına 32 bit, her zara bir sayı. Olağan seçim.</translation>
    </message>
    <message>
        <source>A second Mersenne Twister with a seeding of its own, a number for each die.</source>
        <translation>Kendi tohumlaması olan ikinci bir Mersenne Twister, her zara bir sayı.</translation>
    </message>
    <message>
        <source>A plain congruence with 714,025 states: short, and good for comparing systems on poor dice. Its seeds end at 999,999.</source>
        <translation>714.025 durumlu düz bir eşlik: kısa, ve sistemleri kötü zarlarla karşılaştırmak için iyi. Tohumları 999.999&apos;da biter.</translation>
    </message>
    <message>
        <source>One congruence whose numbers are shuffled through a table of 97.</source>
        <translation>Sayıları 97&apos;lik bir tabloda karılan tek bir eşlik.</translation>
    </message>
    <message>
        <source>Three congruences: two make the number, the third shuffles a table of 97.</source>
        <translation>Üç eşlik: ikisi sayıyı yapar, üçüncüsü 97&apos;lik tabloyu karar.</translation>
    </message>
    <message>
        <source>RNG #1 and RNG #5 by turns, a roll each.</source>
        <translation>RNG #1 ve RNG #5 sırayla, birer atış.</translation>
    </message>
    <message>
        <source>RNG #2 and RNG #4 by turns, a roll each.</source>
        <translation>RNG #2 ve RNG #4 sırayla, birer atış.</translation>
    </message>
    <message>
        <source>As RNG #1, both dice from one number.</source>
        <translation>RNG #1 gibi, iki zar tek sayıdan.</translation>
    </message>
    <message>
        <source>Random number generator</source>
        <translation>Rastgele sayı üreteci</translation>
    </message>
    <message>
        <source>Random number &amp;generator:</source>
        <translation>Rastgele sayı &amp;üreteci:</translation>
    </message>
    <message>
        <source>Seed</source>
        <translation>Tohum</translation>
    </message>
    <message>
        <source> Seed normally</source>
        <translation> Normal tohum</translation>
    </message>
    <message>
        <source> User seed</source>
        <translation> Kullanıcı tohumu</translation>
    </message>
    <message>
        <source>The clock gives each seed</source>
        <translation>Her tohumu saat verir</translation>
    </message>
    <message>
        <source>You are asked for each seed</source>
        <translation>Her tohum size sorulur</translation>
    </message>
    <message>
        <source> Re-seed new sessions</source>
        <translation> Yeni oturumda yeniden tohumla</translation>
    </message>
    <message>
        <source>Seed RNG now</source>
        <translation>Şimdi tohumla</translation>
    </message>
    <message>
        <source>Last entered seed:</source>
        <translation>Son girilen tohum:</translation>
    </message>
</context>
<context>
    <name>tessaryn::GraphView</name>
    <message>
        <source>Bankroll graph</source>
        <translation>Bankroll grafiği</translation>
    </message>
    <message>
        <source>Roll %1:</source>
        <translation>Atış %1:</translation>
    </message>
</context>
<context>
    <name>tessaryn::HelpWindow</name>
    <message>
        <source>en</source>
        <extracomment>The folder of the translated help pages: two small letters, as de or fr. Not a word.</extracomment>
        <translation>tr</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>İleri</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>İlk sayfa</translation>
    </message>
    <message>
        <source>Show or hide the contents</source>
        <translation>İçindekileri göster ya da gizle</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Daha küçük yazı</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Daha büyük yazı</translation>
    </message>
    <message>
        <source>Find in this page</source>
        <translation>Bu sayfada bul</translation>
    </message>
    <message>
        <source>Print this page ...</source>
        <translation>Bu sayfayı yazdır ...</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Araçlar</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Yardımda ara</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>İçindekiler</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Bulunanlar</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Sayfa</translation>
    </message>
    <message>
        <source>The one before</source>
        <translation>Önceki</translation>
    </message>
    <message>
        <source>The next one</source>
        <translation>Sonraki</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Nothing was found for &quot;%1&quot;. Try fewer words, or the beginning of one.</source>
        <translation>&quot;%1&quot; için bir şey bulunamadı. Daha az sözcük ya da bir sözcüğün başını deneyin.</translation>
    </message>
    <message>
        <source>The pages of the help aren&apos;t where the program is. They lie in the folder &quot;docs&quot; of its source and of its packages.</source>
        <translation>Yardım sayfaları programın olduğu yerde değil. Kaynağının ve paketlerinin &quot;docs&quot; klasöründe bulunurlar.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Yazdır</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>Bu sayfada yok</translation>
    </message>
</context>
<context>
    <name>tessaryn::HotKeysScreen</name>
    <message>
        <source>Hot-Keys</source>
        <translation>Kısayol tuşları</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tuş</translation>
    </message>
    <message>
        <source>Auto-Bet file</source>
        <translation>Auto-Bet dosyası</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Açıklama</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>&amp;Tuş:</translation>
    </message>
    <message>
        <source>Auto-Bet &amp;file:</source>
        <translation>Auto-Bet &amp;dosyası:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Açıklama:</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ekle</translation>
    </message>
    <message>
        <source>&amp;Select ...</source>
        <translation>&amp;Seç ...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Kaldır</translation>
    </message>
</context>
<context>
    <name>tessaryn::HousePage</name>
    <message>
        <source>Houses</source>
        <translation>Kasalar</translation>
    </message>
    <message>
        <source>What the house changes</source>
        <translation>Kasanın değiştirdikleri</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ayar</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Masa</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Kasa</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Aç ...</translation>
    </message>
    <message>
        <source>&amp;Save rules as ...</source>
        <translation>Kuralları &amp;farklı kaydet ...</translation>
    </message>
    <message>
        <source>&amp;Use this house</source>
        <translation>Bu kasayı k&amp;ullan</translation>
    </message>
    <message>
        <source>The table has these rules.</source>
        <translation>Masada bu kurallar var.</translation>
    </message>
</context>
<context>
    <name>tessaryn::JoinScreen</name>
    <message>
        <source>&amp;Join</source>
        <translation>&amp;Katıl</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;İptal</translation>
    </message>
    <message>
        <source>How much would %1 like to buy-in for?</source>
        <translation>%1 masaya ne kadarla girmek ister?</translation>
    </message>
</context>
<context>
    <name>tessaryn::LaboratoryScreen</name>
    <message>
        <source>Laboratory</source>
        <translation>Laboratuvar</translation>
    </message>
    <message>
        <source>Sessions played</source>
        <translation>Oynanan oturumlar</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Bitir</translation>
    </message>
    <message>
        <source>Ends the experiment with what is known</source>
        <translation>Deneyi bilinenlerle bitirir</translation>
    </message>
    <message>
        <source>Comp&amp;are A</source>
        <translation>A&apos;yı &amp;karşılaştır</translation>
    </message>
    <message>
        <source>System A</source>
        <translation>Sistem A</translation>
    </message>
    <message>
        <source>&amp;with B</source>
        <translation>B &amp;ile</translation>
    </message>
    <message>
        <source>System B</source>
        <translation>Sistem B</translation>
    </message>
    <message>
        <source>Pages of the laboratory</source>
        <translation>Laboratuvar sayfaları</translation>
    </message>
    <message>
        <source>E&amp;xperiment</source>
        <translation>&amp;Deney</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Ölçüler</translation>
    </message>
    <message>
        <source>Res&amp;ults</source>
        <translation>S&amp;onuçlar</translation>
    </message>
    <message>
        <source>On the wa&amp;y</source>
        <translation>&amp;Yolda</translation>
    </message>
    <message>
        <source>E&amp;nds</source>
        <translation>&amp;Sonlar</translation>
    </message>
    <message>
        <source>All systems</source>
        <translation>Tüm sistemler</translation>
    </message>
    <message>
        <source>All s&amp;ystems</source>
        <translation>T&amp;üm sistemler</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Oturum</translation>
    </message>
    <message>
        <source>Number of the session</source>
        <translation>Oturumun numarası</translation>
    </message>
    <message>
        <source>System of the session</source>
        <translation>Oturumun sistemi</translation>
    </message>
    <message>
        <source>Play it at the &amp;table</source>
        <translation>&amp;Masada oyna</translation>
    </message>
    <message>
        <source>Puts the session on the table in place of the game, to be watched roll by roll</source>
        <translation>Oturumu oyunun yerine masaya koyar, atış atış izlemek için</translation>
    </message>
    <message>
        <source>Re&amp;port ...</source>
        <translation>&amp;Rapor ...</translation>
    </message>
    <message>
        <source>of</source>
        <translation>/</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(yok)</translation>
    </message>
    <message>
        <source>The first sessions are being played ...</source>
        <translation>İlk oturumlar oynanıyor ...</translation>
    </message>
    <message>
        <source>What does a system bring over a whole session?</source>
        <translation>Bir sistem bütün bir oturumda ne getirir?</translation>
    </message>
    <message>
        <source>Add systems, say how sessions end, and run: each session has dice of its own, the same for every system.</source>
        <translation>Sistemler ekleyin, oturumların nasıl biteceğini söyleyin ve başlatın: her oturumun kendi zarları vardır, her sistem için aynı.</translation>
    </message>
    <message>
        <source>Pa&amp;use</source>
        <translation>D&amp;uraklat</translation>
    </message>
    <message>
        <source>C&amp;ontinue</source>
        <translation>D&amp;evam</translation>
    </message>
    <message>
        <source>&amp;Run %1</source>
        <translation>%1 ba&amp;şlat</translation>
    </message>
    <message>
        <source>Tessaryn Laboratory</source>
        <translation>Tessaryn Laboratuvarı</translation>
    </message>
    <message>
        <source>rank by</source>
        <translation>sıralama</translation>
    </message>
    <message>
        <source>What systems are ranked by</source>
        <translation>Sistemlerin sıralama ölçütü</translation>
    </message>
    <message>
        <source>Pairs of systems</source>
        <translation>Sistem çiftleri</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Çiftler</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Tarama</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Bulunanlar</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Bulunan</translation>
    </message>
    <message>
        <source>Add a system</source>
        <translation>Sistem ekle</translation>
    </message>
    <message>
        <source>As command line</source>
        <translation>Komut satırı olarak</translation>
    </message>
    <message>
        <source>System of the sweep</source>
        <translation>Taramanın sistemi</translation>
    </message>
    <message>
        <source>Open ...</source>
        <translation>Aç ...</translation>
    </message>
    <message>
        <source>An experiment that was saved, here or by the command line: to look at, or to go on with</source>
        <translation>Burada ya da komut satırıyla kaydedilmiş bir deney: bakmak ya da sürdürmek için</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Kaydet</translation>
    </message>
    <message>
        <source>&amp;Experiment ...</source>
        <translation>&amp;Deney ...</translation>
    </message>
    <message>
        <source>Sessions as &amp;CSV ...</source>
        <translation>Oturumlar (&amp;CSV) ...</translation>
    </message>
    <message>
        <source>&amp;Sessions Log ...</source>
        <translation>&amp;Oturum günlüğü ...</translation>
    </message>
    <message>
        <source>Results as &amp;JSON ...</source>
        <translation>Sonuçlar (&amp;JSON) ...</translation>
    </message>
    <message>
        <source>Copy as command &amp;line</source>
        <translation>&amp;Komut satırı olarak kopyala</translation>
    </message>
    <message>
        <source>Keeping every session would take %1 GB: take the mark there away, or play fewer.</source>
        <translation>Her oturumu saklamak %1 GB tutar: oradaki işareti kaldırın ya da daha az oynatın.</translation>
    </message>
    <message>
        <source>Looking, always on the same dice ...</source>
        <translation>Aranıyor, hep aynı zarlarla ...</translation>
    </message>
    <message>
        <source>%1 sessions for each value that is tried, seed %2.</source>
        <translation>Denenen her değer için %1 oturum, tohum %2.</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Sistemler</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Zarlar</translation>
    </message>
    <message>
        <source>percentage dice, seed %1, the same for all</source>
        <translation>yüzdeli zarlar, tohum %1, hepsi için aynı</translation>
    </message>
    <message>
        <source>RNG %1, seed %2, the same for all</source>
        <translation>RNG %1, tohum %2, hepsi için aynı</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Süre</translation>
    </message>
    <message>
        <source>%1 sessions in %2 s</source>
        <translation>%2 saniyede %1 oturum</translation>
    </message>
    <message>
        <source>Experiment</source>
        <translation>Deney</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Dur</translation>
    </message>
    <message>
        <source>&amp;Find it</source>
        <translation>Ya&amp;nıtı bul</translation>
    </message>
    <message>
        <source>&amp;Go on to %1</source>
        <translation>De&amp;vam: %1</translation>
    </message>
    <message>
        <source>Plays more of the same experiment: four times as many sessions halve the bounds</source>
        <translation>Aynı deneyden daha çok oynar: dört kat oturum sınırları yarıya indirir</translation>
    </message>
    <message>
        <source>The experiment is open without its single sessions, so there is no CSV and no Sessions Log of it: %1</source>
        <translation>Deney tek tek oturumları olmadan açıldı; bu yüzden CSV&apos;si ve oturum günlüğü yok: %1</translation>
    </message>
    <message>
        <source>Saved; it is kept up to date there from now on.</source>
        <translation>Kaydedildi; bundan sonra orada güncel tutulur.</translation>
    </message>
    <message>
        <source>Saved: a line for each session and system.</source>
        <translation>Kaydedildi: her oturum ve sistem için bir satır.</translation>
    </message>
    <message>
        <source>this file is there already; choose another name</source>
        <translation>bu dosya zaten var; başka bir ad seçin</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Kaydedildi.</translation>
    </message>
    <message>
        <source>Saved: a Sessions Log for each system, numbered in their order.</source>
        <translation>Kaydedildi: her sistem için bir oturum günlüğü, sistem sırasıyla numaralı.</translation>
    </message>
    <message>
        <source>There is no command line for this experiment.</source>
        <translation>Bu deneyin komut satırı yok.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Kopyalandı: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::LaboratorySetup</name>
    <message>
        <source>Laboratory</source>
        <translation>Laboratuvar</translation>
    </message>
    <message>
        <source>Systems, all on the same dice</source>
        <translation>Sistemler, hepsi aynı zarlarla</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Sistemler</translation>
    </message>
    <message>
        <source>Add s&amp;cript ...</source>
        <translation>Beti&amp;k ekle ...</translation>
    </message>
    <message>
        <source>Add &amp;player&apos;s script</source>
        <translation>Oyuncunun betiğini e&amp;kle</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>Ka&amp;ldır</translation>
    </message>
    <message>
        <source>Standing bets</source>
        <translation>Sürekli bahisler</translation>
    </message>
    <message>
        <source>Standing bets: passline=10, place6=12</source>
        <translation>Sürekli bahisler: passline=10, place6=12</translation>
    </message>
    <message>
        <source>Add &amp;bets</source>
        <translation>&amp;Bahis ekle</translation>
    </message>
    <message>
        <source>Stakes that CheckStacks start at</source>
        <translation>CheckStack&apos;lerin başladığı tutarlar</translation>
    </message>
    <message>
        <source>none</source>
        <translation>yok</translation>
    </message>
    <message>
        <source>Sessions and their ends</source>
        <translation>Oturumlar ve sonları</translation>
    </message>
    <message>
        <source>Sess&amp;ions</source>
        <translation>&amp;Oturumlar</translation>
    </message>
    <message>
        <source>&amp;Start with $</source>
        <translation>&amp;Başlangıç $</translation>
    </message>
    <message>
        <source>Most r&amp;olls</source>
        <translation>En çok &amp;atış</translation>
    </message>
    <message>
        <source>any</source>
        <translation>herhangi</translation>
    </message>
    <message>
        <source>Most &amp;hands</source>
        <translation>En çok &amp;el</translation>
    </message>
    <message>
        <source>&amp;Win goal $</source>
        <translation>Kazanç &amp;hedefi $</translation>
    </message>
    <message>
        <source>&amp;Loss limit $</source>
        <translation>Kayıp &amp;sınırı $</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>hemen</translation>
    </message>
    <message>
        <source>after the hand</source>
        <translation>elden sonra</translation>
    </message>
    <message>
        <source>when no contract bet is up any more</source>
        <translation>bağlı bahis kalmayınca</translation>
    </message>
    <message>
        <source>&amp;Ends fall</source>
        <translation>&amp;Sonlar gelir</translation>
    </message>
    <message>
        <source>&amp;Known to ±$</source>
        <translation>±$ kadar b&amp;ilinen</translation>
    </message>
    <message>
        <source>Stops as soon as each mean is known so well, 95% sure</source>
        <translation>Her ortalama bu kadar bilinince durur, yüzde 95 kesin</translation>
    </message>
    <message>
        <source>Table and dice</source>
        <translation>Masa ve zarlar</translation>
    </message>
    <message>
        <source>See&amp;d</source>
        <translation>To&amp;hum</translation>
    </message>
    <message>
        <source>The selected player has no script.</source>
        <translation>Seçili oyuncunun betiği yok.</translation>
    </message>
    <message>
        <source>There is nothing to play: add a script, or standing bets.</source>
        <translation>Oynanacak bir şey yok: bir betik ya da sürekli bahisler ekleyin.</translation>
    </message>
    <message>
        <source>Start with: must be from 0.01 to %1</source>
        <translation>Başlangıç: 0.01 ile %1 arası olmalı</translation>
    </message>
    <message>
        <source>CheckStacks s&amp;tart at</source>
        <translation>&amp;CheckStack başlangıcı</translation>
    </message>
    <message>
        <source>as the scripts have them; or 1=5,10,25; 2=5..50:5</source>
        <translation>betiklerdeki gibi; ya da 1=5,10,25; 2=5..50:5</translation>
    </message>
    <message>
        <source>&amp;Vary settings</source>
        <translation>De&amp;ğişen ayarlar</translation>
    </message>
    <message>
        <source>Settings that are varied</source>
        <translation>Değişen ayarlar</translation>
    </message>
    <message>
        <source>none; or OddsCalcMethod=1,2,3; FieldPreset=...</source>
        <translation>yok; ya da OddsCalcMethod=1,2,3; FieldPreset=...</translation>
    </message>
    <message>
        <source>Most hours</source>
        <translation>En çok saat</translation>
    </message>
    <message>
        <source>Of play, by the roll rate in the table&apos;s settings</source>
        <translation>Oyun süresi, masa ayarlarındaki atış hızına göre</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>Çekirdekler</translation>
    </message>
    <message>
        <source>How many play at a time; results are the same for any number</source>
        <translation>Aynı anda kaçı oynar; sonuçlar her sayıda aynıdır</translation>
    </message>
    <message>
        <source>Other settings for all systems</source>
        <translation>Tüm sistemler için öteki ayarlar</translation>
    </message>
    <message>
        <source>other settings: SimRollRate=120; ...</source>
        <translation>öteki ayarlar: SimRollRate=120; ...</translation>
    </message>
    <message>
        <source>Keep every session</source>
        <translation>Her oturumu sakla</translation>
    </message>
    <message>
        <source>For CSV and Sessions Logs; takes 350 bytes of disk for each</source>
        <translation>CSV ve oturum günlükleri için; her oturum diskte 350 bayt tutar</translation>
    </message>
    <message>
        <source>What is asked</source>
        <translation>Soru</translation>
    </message>
    <message>
        <source>What sessions bring</source>
        <translation>Oturumların getirisi</translation>
    </message>
    <message>
        <source>The least bankroll</source>
        <translation>En düşük bankroll</translation>
    </message>
    <message>
        <source>The largest stake</source>
        <translation>En yüksek tutar</translation>
    </message>
    <message>
        <source>Ruined at most</source>
        <translation>En çok batan</translation>
    </message>
    <message>
        <source>CheckStack number</source>
        <translation>CheckStack numarası</translation>
    </message>
    <message>
        <source>The share of sessions that may be ruined</source>
        <translation>Batabilecek oturumların payı</translation>
    </message>
    <message>
        <source>Whose largest start is looked for</source>
        <translation>En yüksek başlangıcı aranan CheckStack</translation>
    </message>
    <message>
        <source>Stakes</source>
        <translation>Tutarlar</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Öteki ayarlar</translation>
    </message>
    <message>
        <source>Say how long a session may last: rolls, hands or hours.</source>
        <translation>Bir oturumun ne kadar sürebileceğini söyleyin: atış, el ya da saat.</translation>
    </message>
    <message>
        <source>Rules and dice</source>
        <translation>Kurallar ve zarlar</translation>
    </message>
    <message>
        <source>Rules and dice of this table</source>
        <translation>Bu masanın kuralları ve zarları</translation>
    </message>
    <message>
        <source>Rules and dice of a new table</source>
        <translation>Yeni bir masanın kuralları ve zarları</translation>
    </message>
    <message>
        <source>Rules and dice of the opened file</source>
        <translation>Açılan dosyanın kuralları ve zarları</translation>
    </message>
</context>
<context>
    <name>tessaryn::LooksPage</name>
    <message>
        <source>Green</source>
        <translation>Yeşil</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Mavi</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Turkuaz</translation>
    </message>
    <message>
        <source>Burgundy</source>
        <translation>Bordo</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Mor</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Gri</translation>
    </message>
    <message>
        <source>Tan</source>
        <translation>Kum rengi</translation>
    </message>
    <message>
        <source>Cloth</source>
        <translation>Çuha</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Masa</translation>
    </message>
    <message>
        <source>Lettering</source>
        <translation>Yazılar</translation>
    </message>
    <message>
        <source>Rail</source>
        <translation>Ray</translation>
    </message>
    <message>
        <source>Round the table</source>
        <translation>Masanın çevresi</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Fişler</translation>
    </message>
    <message>
        <source>First check</source>
        <translation>Birinci fiş</translation>
    </message>
    <message>
        <source>Second check</source>
        <translation>İkinci fiş</translation>
    </message>
    <message>
        <source>Third check</source>
        <translation>Üçüncü fiş</translation>
    </message>
    <message>
        <source>Fourth check</source>
        <translation>Dördüncü fiş</translation>
    </message>
    <message>
        <source>Fifth check</source>
        <translation>Beşinci fiş</translation>
    </message>
    <message>
        <source>&quot;$&quot; check</source>
        <translation>&quot;$&quot; fişi</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Zarlar</translation>
    </message>
    <message>
        <source>First die</source>
        <translation>Birinci zar</translation>
    </message>
    <message>
        <source>Second die</source>
        <translation>İkinci zar</translation>
    </message>
    <message>
        <source>Pips</source>
        <translation>Noktalar</translation>
    </message>
    <message>
        <source>All as at first</source>
        <translation>Hepsi ilk hali gibi</translation>
    </message>
    <message>
        <source>Another color</source>
        <translation>Başka renk</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Renk</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Doku</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Spot ışığı</translation>
    </message>
    <message>
        <source>Lettering in a font of my own</source>
        <translation>Yazılar kendi yazı tipimle</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Yazı tipi</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Pencere</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Açık ya da koyu</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Masaüstü gibi</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Koyu</translation>
    </message>
    <message>
        <source>No motion</source>
        <translation>Hareketsiz</translation>
    </message>
    <message>
        <source>Notes in boxes</source>
        <translation>Notlar kutularda</translation>
    </message>
</context>
<context>
    <name>tessaryn::LuckWindow</name>
    <message>
        <source>Luck</source>
        <translation>Şans</translation>
    </message>
    <message>
        <source>Expected: what the bets made cost or bring on average, under the rules and dice in force. Luck is what the dice gave beyond it. Price: what was given away, in percent of what was decided.</source>
        <translation>Beklenen: konan bahislerin geçerli kurallar ve zarlarla ortalama maliyeti ya da getirisi. Şans, zarların bunun ötesinde verdiğidir. Bedel: verilen, sonuçlananın yüzdesi olarak.</translation>
    </message>
    <message>
        <source>Luck of the players</source>
        <translation>Oyuncuların şansı</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Oyuncu</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Beklenen</translation>
    </message>
    <message>
        <source>Came</source>
        <translation>Gelen</translation>
    </message>
    <message>
        <source>Std. deviation</source>
        <translation>Std sapma</translation>
    </message>
    <message>
        <source>Luck in std. dev.</source>
        <translation>Std sapma olarak şans</translation>
    </message>
    <message>
        <source>Decided</source>
        <translation>Sonuçlanan</translation>
    </message>
    <message>
        <source>Price %</source>
        <translation>Bedel %</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Atış</translation>
    </message>
    <message>
        <source>Not counted</source>
        <translation>Sayılmayan</translation>
    </message>
    <message>
        <source>Rolls with bets up that were counted, and rolls that were not: those of a Turbo-Roll are counted while this window is open.</source>
        <translation>Bahis varken sayılan atışlar, ve sayılmayanlar: Turbo-Roll atışları bu pencere açıkken sayılır.</translation>
    </message>
</context>
<context>
    <name>tessaryn::MainWindow</name>
    <message>
        <source>Tessaryn Turbo-Roll Stopped</source>
        <translation>Tessaryn Turbo-Roll durduruldu</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Atış %1</translation>
    </message>
    <message>
        <source>Come-out</source>
        <translation>Come-out</translation>
    </message>
    <message>
        <source>Point %1</source>
        <translation>Point %1</translation>
    </message>
    <message>
        <source>Shooter: %1</source>
        <translation>Atıcı: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::MessageScreen</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Tamam</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;İptal</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Yardım</translation>
    </message>
</context>
<context>
    <name>tessaryn::MovePanel</name>
    <message>
        <source>Move Table</source>
        <translation>Masayı taşı</translation>
    </message>
    <message>
        <source>With Shift or Ctrl: to the window&apos;s border</source>
        <translation>Shift ya da Ctrl ile: pencerenin kenarına</translation>
    </message>
    <message>
        <source>By 30 degrees; Shift 90, Ctrl 45, both 180</source>
        <translation>30 derece; Shift 90, Ctrl 45, ikisi 180</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Yukarı</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Sola</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Sağa</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Aşağı</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Ortala</translation>
    </message>
    <message>
        <source>The table into the middle of the window</source>
        <translation>Masa pencerenin ortasına</translation>
    </message>
    <message>
        <source>Turn clockwise</source>
        <translation>Saat yönünde döndür</translation>
    </message>
    <message>
        <source>Turn counterclockwise</source>
        <translation>Saatin tersine döndür</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Yakınlaştır</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uzaklaştır</translation>
    </message>
    <message>
        <source>Shift: to the window&apos;s height; Ctrl: to its width; both: to the limit</source>
        <translation>Shift: pencerenin yüksekliğine; Ctrl: genişliğine; ikisi: sınıra</translation>
    </message>
</context>
<context>
    <name>tessaryn::NewSessionScreen</name>
    <message>
        <source>New Session</source>
        <translation>Yeni oturum</translation>
    </message>
    <message>
        <source>All bets are taken down and a new session starts.</source>
        <translation>Tüm bahisler kaldırılır ve yeni bir oturum başlar.</translation>
    </message>
    <message>
        <source> Preserve dice roll file</source>
        <translation> Zar dosyasını koru</translation>
    </message>
    <message>
        <source> Rewind and playback</source>
        <translation> Başa sar ve oynat</translation>
    </message>
    <message>
        <source> Continue </source>
        <translation> Devam et </translation>
    </message>
    <message>
        <source> Preserve auto-bet scripts</source>
        <translation> Auto-Bet betiklerini koru</translation>
    </message>
    <message>
        <source> Preserve previous sessions data</source>
        <translation> Önceki oturumların verilerini koru</translation>
    </message>
    <message>
        <source> Preserve checkstacks</source>
        <translation> CheckStack&apos;leri koru</translation>
    </message>
    <message>
        <source> Preserve sessions logs</source>
        <translation> Oturum günlüklerini koru</translation>
    </message>
</context>
<context>
    <name>tessaryn::PadGrid</name>
    <message>
        <source>Roll a %1</source>
        <translation>%1 at</translation>
    </message>
    <message>
        <source>Roll %1 and %2</source>
        <translation>%1 ve %2 at</translation>
    </message>
    <message>
        <source>First die %1</source>
        <translation>Birinci zar %1</translation>
    </message>
    <message>
        <source>Second die %1</source>
        <translation>İkinci zar %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::PayoffPage</name>
    <message>
        <source>Passline/Come (c.o.)</source>
        <translation>Pass Line/Come (c.o.)</translation>
    </message>
    <message>
        <source>Pass/Come %1</source>
        <translation>Pass/Come %1</translation>
    </message>
    <message>
        <source>Pass/Come %1 Odds</source>
        <translation>Pass/Come %1 Odds</translation>
    </message>
    <message>
        <source>Don&apos;t Pass/Come (c.o.)</source>
        <translation>Don&apos;t Pass/Come (c.o.)</translation>
    </message>
    <message>
        <source>DP/DC %1</source>
        <translation>DP/DC %1</translation>
    </message>
    <message>
        <source>DP/DC %1 Odds</source>
        <translation>DP/DC %1 Odds</translation>
    </message>
    <message>
        <source>Come-out 7</source>
        <translation>Come-out&apos;ta yedi</translation>
    </message>
    <message>
        <source>Seven after the point</source>
        <translation>Point&apos;ten sonra yedi</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>%1 ya da çok</translation>
    </message>
    <message numerus="yes">
        <source>%1 points made</source>
        <translation>
            <numerusform>%1 point yapıldı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 line wins</source>
        <translation>
            <numerusform>%1 çizgi kazancı</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 different points</source>
        <translation>
            <numerusform>%1 farklı point</numerusform>
        </translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Bahisler</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>7 Point 7</source>
        <translation>7 Point 7</translation>
    </message>
    <message>
        <source>Midway</source>
        <translation>Midway</translation>
    </message>
    <message>
        <source>Sharp Shooter</source>
        <translation>Sharp Shooter</translation>
    </message>
    <message>
        <source>Ride The Line</source>
        <translation>Ride The Line</translation>
    </message>
    <message>
        <source>Fire</source>
        <translation>Fire</translation>
    </message>
    <message>
        <source>&amp;Field w/ 2x on Two and Twelve</source>
        <translation>&amp;Field, Two ve Twelve&apos;de 2x</translation>
    </message>
    <message>
        <source>&amp;Pass Line</source>
        <translation>&amp;Pass Line</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Pass (bar 12)</source>
        <translation>&amp;Don&apos;t Pass (yasak 12)</translation>
    </message>
    <message>
        <source>&amp;Crapless Craps Pass Line</source>
        <translation>&amp;Crapless Craps Pass Line</translation>
    </message>
    <message>
        <source>Place &amp;6</source>
        <translation>Place &amp;6</translation>
    </message>
    <message>
        <source>Place to &amp;Lose 8</source>
        <translation>Place to &amp;Lose 8</translation>
    </message>
    <message>
        <source>Buy &amp;10 (5 % vig)</source>
        <translation>Buy &amp;10 (yüzde 5 vig)</translation>
    </message>
    <message>
        <source>Lay &amp;4 (5% vig on win only)</source>
        <translation>Lay &amp;4 (yalnız kazanınca yüzde 5 vig)</translation>
    </message>
    <message>
        <source>H&amp;ard 8</source>
        <translation>H&amp;ard 8</translation>
    </message>
    <message>
        <source>&amp;Horn</source>
        <translation>&amp;Horn</translation>
    </message>
    <message>
        <source>&amp;World</source>
        <translation>&amp;World</translation>
    </message>
    <message>
        <source>H&amp;op 13</source>
        <translation>H&amp;op 13</translation>
    </message>
    <message>
        <source>&amp;Midway</source>
        <translation>&amp;Midway</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Bahis</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Sonuç</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Öder</translation>
    </message>
    <message>
        <source>to/for</source>
        <translation>to/for</translation>
    </message>
    <message>
        <source>Per</source>
        <translation>Başına</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Not</translation>
    </message>
    <message>
        <source>to</source>
        <translation>to</translation>
    </message>
    <message>
        <source>for</source>
        <translation>for</translation>
    </message>
    <message>
        <source>not taken yet</source>
        <translation>henüz alınmadı</translation>
    </message>
    <message>
        <source>originally %1</source>
        <translation>ilk hali %1</translation>
    </message>
    <message>
        <source>Payoffs of</source>
        <translation>Ödemeleri</translation>
    </message>
    <message>
        <source>Payoffs &amp;of</source>
        <translation>Ö&amp;demeleri</translation>
    </message>
    <message>
        <source>Payoffs</source>
        <translation>Ödemeler</translation>
    </message>
    <message>
        <source>Enter goes from number to number; t and f write the word between them.</source>
        <translation>Enter sayıdan sayıya geçer; t ve f aradaki sözcüğü yazar.</translation>
    </message>
    <message>
        <source>&amp;Set Field payoffs to</source>
        <translation>&amp;Field ödemelerini ayarla</translation>
    </message>
    <message>
        <source>&amp;Restore default payoffs</source>
        <translation>&amp;Varsayılan ödemelere dön</translation>
    </message>
    <message>
        <source>Payoff of %1</source>
        <translation>%1 ödemesi</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tablo</translation>
    </message>
    <message>
        <source>Bet or outcome</source>
        <translation>Bahis ya da sonuç</translation>
    </message>
</context>
<context>
    <name>tessaryn::PercentageDiceWindow</name>
    <message>
        <source>Percentage Dice</source>
        <translation>Yüzdeli zarlar</translation>
    </message>
    <message>
        <source>Die 1 \ Die 2</source>
        <translation>Zar 1 \ Zar 2</translation>
    </message>
    <message>
        <source>Die 2</source>
        <translation>Zar 2</translation>
    </message>
    <message>
        <source>Die 1</source>
        <translation>Zar 1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Toplam</translation>
    </message>
    <message>
        <source>Probability</source>
        <translation>Olasılık</translation>
    </message>
    <message>
        <source>Probability file: %1</source>
        <translation>Olasılık dosyası: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::PermissionsScreen</name>
    <message>
        <source>Auto-Bet Permissions</source>
        <translation>Auto-Bet izinleri</translation>
    </message>
    <message>
        <source>%1&apos;s script may:</source>
        <translation>%1 oyuncusunun betiği:</translation>
    </message>
    <message>
        <source>act for &amp;other players</source>
        <translation>&amp;başka oyuncular adına oynayabilir</translation>
    </message>
    <message>
        <source>start new &amp;sessions</source>
        <translation>yeni &amp;oturumlar başlatabilir</translation>
    </message>
    <message>
        <source>activate and deactivate &amp;probability files and dice roll files</source>
        <translation>&amp;olasılık ve zar dosyalarını açıp kapayabilir</translation>
    </message>
</context>
<context>
    <name>tessaryn::PlayerChoice</name>
    <message>
        <source>Player</source>
        <translation>Oyuncu</translation>
    </message>
</context>
<context>
    <name>tessaryn::ProbabilityPage</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Dosya</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Yeni</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Aç ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Kaydet</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>&amp;Farklı kaydet ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Dü&amp;zen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Geri al</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>&amp;Lock or unlock the cell	L</source>
        <translation>Hücreyi &amp;kilitle ya da aç	L</translation>
    </message>
    <message>
        <source>&amp;Shooter&apos;s effectiveness ...</source>
        <translation>Atıcının &amp;etkinliği ...</translation>
    </message>
    <message>
        <source>Ready &amp;dice</source>
        <translation>&amp;Hazır zarlar</translation>
    </message>
    <message>
        <source>E&amp;ven Out</source>
        <translation>&amp;Eşitle</translation>
    </message>
    <message>
        <source>Keeps this cell&apos;s value; what isn&apos;t locked shares the rest equally</source>
        <translation>Bu hücrenin değerini korur; kilitli olmayanlar kalanı eşit paylaşır</translation>
    </message>
    <message>
        <source>Nothing is free to share the rest.</source>
        <translation>Kalanı paylaşacak serbest hücre yok.</translation>
    </message>
    <message>
        <source>&amp;Unlock All</source>
        <translation>Tüm ki&amp;litleri aç</translation>
    </message>
    <message>
        <source>Percentage dice in use</source>
        <translation>Kullanılan yüzdeli zarlar</translation>
    </message>
    <message>
        <source>Number of rolls</source>
        <translation>Atış sayısı</translation>
    </message>
    <message>
        <source>%1: %2%, fair dice %3%</source>
        <translation>%1: yüzde %2, adil zarlarda yüzde %3</translation>
    </message>
    <message>
        <source>. Locked: L unlocks it.</source>
        <translation>. Kilitli: L açar.</translation>
    </message>
    <message>
        <source>. Type a value, L locks.</source>
        <translation>. Bir değer yazın, L kilitler.</translation>
    </message>
    <message>
        <source>Nothing is free to take up the difference: the cell keeps its value.</source>
        <translation>Farkı alacak serbest hücre yok: hücre değerini korur.</translation>
    </message>
</context>
<context>
    <name>tessaryn::ProbabilityTable</name>
    <message>
        <source>Probabilities of the dice</source>
        <translation>Zarların olasılıkları</translation>
    </message>
</context>
<context>
    <name>tessaryn::RollFilesWindow</name>
    <message>
        <source>&amp;New / Open ...</source>
        <translation>&amp;Yeni / Aç ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Kapat</translation>
    </message>
    <message>
        <source>Copy To &amp;Roll File ...</source>
        <translation>Zar &amp;dosyasına kopyala ...</translation>
    </message>
    <message>
        <source>Copy To &amp;Text File ...</source>
        <translation>&amp;Metin dosyasına kopyala ...</translation>
    </message>
    <message>
        <source>Paste &amp;From Roll File ...</source>
        <translation>Za&amp;r dosyasından yapıştır ...</translation>
    </message>
    <message>
        <source>Paste From Te&amp;xt File ...</source>
        <translation>Me&amp;tin dosyasından yapıştır ...</translation>
    </message>
    <message>
        <source>&amp;Print ...</source>
        <translation>Ya&amp;zdır ...</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Geri al</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Yinele</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>K&amp;es</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopyala</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>Ya&amp;pıştır</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Sil</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tümünü seç</translation>
    </message>
    <message>
        <source>Dice Roll Files</source>
        <translation>Zar dosyaları</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Dosya</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Dü&amp;zen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Görünüm</translation>
    </message>
    <message>
        <source>&amp;Highlight</source>
        <translation>&amp;Vurgula</translation>
    </message>
    <message>
        <source>Font &amp;size</source>
        <translation>Yazı &amp;boyutu</translation>
    </message>
    <message>
        <source>&amp;As the screen</source>
        <translation>&amp;Ekran gibi</translation>
    </message>
    <message>
        <source>Entering rolls, and their distribution</source>
        <translation>Atış girişi ve dağılımları</translation>
    </message>
    <message>
        <source>Enter %1 and %2</source>
        <translation>%1 ve %2 gir</translation>
    </message>
    <message>
        <source>Enters %1 and %2. In the list: type %1%2</source>
        <translation>%1 ve %2 girer. Listede: %1%2 yazın</translation>
    </message>
    <message>
        <source> Type over</source>
        <translation> Üzerine yaz</translation>
    </message>
    <message>
        <source> Insert</source>
        <translation> Araya ekle</translation>
    </message>
    <message>
        <source>Ran&amp;dom</source>
        <translation>&amp;Rastgele</translation>
    </message>
    <message>
        <source>&amp;Output format:</source>
        <translation>Çıktı &amp;biçimi:</translation>
    </message>
    <message>
        <source>Roll#, Die1, Die2 and Total stand for the values; all else is copied as it is</source>
        <translation>Roll#, Die1, Die2 ve Total değerlerin yerini tutar; kalan her şey olduğu gibi kopyalanır</translation>
    </message>
    <message>
        <source>■ Off</source>
        <translation>■ Kapalı</translation>
    </message>
    <message>
        <source>● Record</source>
        <translation>● Kaydet</translation>
    </message>
    <message>
        <source>▶ Playback</source>
        <translation>▶ Oynat</translation>
    </message>
    <message>
        <source>Recorder off</source>
        <translation>Kaydedici kapalı</translation>
    </message>
    <message>
        <source>Record the game&apos;s rolls</source>
        <translation>Oyunun atışlarını kaydet</translation>
    </message>
    <message>
        <source>Play the file&apos;s rolls</source>
        <translation>Dosyanın atışlarını oyna</translation>
    </message>
    <message>
        <source>Next roll &amp;is roll #</source>
        <translation>So&amp;nraki atış no</translation>
    </message>
    <message>
        <source>No file open</source>
        <translation>Açık dosya yok</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 atış</numerusform>
        </translation>
    </message>
    <message>
        <source>Roll 12, 3 and 4: %1</source>
        <translation>Atış 12, 3 ve 4: %1</translation>
    </message>
    <message>
        <source>No die and no total in it</source>
        <translation>İçinde ne zar ne toplam var</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls counted ...</source>
        <translation>
            <numerusform>%1 atış sayıldı ...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %1 rolls</source>
        <translation>
            <numerusform>Tüm %1 atış</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 selected rolls</source>
        <translation>
            <numerusform>Seçili %1 atış</numerusform>
        </translation>
    </message>
    <message>
        <source>Print Dice Rolls</source>
        <translation>Atışları yazdır</translation>
    </message>
    <message>
        <source>Roll file:  %1</source>
        <translation>Zar dosyası:  %1</translation>
    </message>
    <message>
        <source>Rolls: %1</source>
        <translation>Atış: %1</translation>
    </message>
    <message>
        <source>Number of rolls to be printed: %1</source>
        <translation>Yazdırılacak atış sayısı: %1</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, %2 seçili</translation>
    </message>
    <message>
        <source>%1 · % · hatched: fair</source>
        <translation>%1 · % · taralı: adil</translation>
    </message>
</context>
<context>
    <name>tessaryn::RollList</name>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Hiçbiri</translation>
    </message>
    <message>
        <source>&amp;Sevens</source>
        <translation>&amp;Yediler</translation>
    </message>
    <message>
        <source>&amp;Craps: 2, 3 and 12</source>
        <translation>&amp;Craps: 2, 3 ve 12</translation>
    </message>
    <message>
        <source>&amp;Point numbers</source>
        <translation>&amp;Point sayıları</translation>
    </message>
    <message>
        <source>Si&amp;x and eight</source>
        <translation>&amp;Altı ve sekiz</translation>
    </message>
    <message>
        <source>P&amp;airs</source>
        <translation>&amp;Çiftler</translation>
    </message>
    <message>
        <source>First roll shown</source>
        <translation>Gösterilen ilk atış</translation>
    </message>
    <message>
        <source>No dice roll file is open.
File, New or Open begins.</source>
        <translation>Açık zar dosyası yok.
Dosya, Yeni ya da Aç ile başlayın.</translation>
    </message>
    <message>
        <source>end of file</source>
        <translation>dosya sonu</translation>
    </message>
    <message>
        <source>No dice roll file is open</source>
        <translation>Açık zar dosyası yok</translation>
    </message>
    <message>
        <source>Dice rolls, next roll %1 of %2</source>
        <translation>Atışlar, sonraki atış %1 / %2</translation>
    </message>
    <message>
        <source>%1, rolls %2 to %3 selected</source>
        <translation>%1, %2 - %3 atışları seçili</translation>
    </message>
</context>
<context>
    <name>tessaryn::RollPad</name>
    <message>
        <source>&amp;Random Roll</source>
        <translation>&amp;Rastgele atış</translation>
    </message>
    <message>
        <source>Roll Your Own Numbers</source>
        <translation>Kendi sayılarını at</translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation>Koşunun hızı</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Atış %1</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>Gi&amp;zle</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <translation>&amp;Görüntü</translation>
    </message>
    <message>
        <source>Roll &amp;counter</source>
        <translation>Atış &amp;sayacı</translation>
    </message>
    <message>
        <source>&amp;Turbo-Roll button</source>
        <translation>&amp;Turbo-Roll düğmesi</translation>
    </message>
    <message>
        <source>&amp;Random button</source>
        <translation>&amp;Rastgele düğmesi</translation>
    </message>
    <message>
        <source>Set Auto-Roll t&amp;ime delay ...</source>
        <translation>Auto-Roll g&amp;ecikmesi ...</translation>
    </message>
    <message>
        <source>Set Auto-&amp;Stop ...</source>
        <translation>Otomatik &amp;durma ...</translation>
    </message>
</context>
<context>
    <name>tessaryn::RunControls</name>
    <message>
        <source>R&amp;oll</source>
        <translation>&amp;At</translation>
    </message>
    <message>
        <source>Pass dice</source>
        <translation>Devret</translation>
    </message>
    <message>
        <source>Roll the dice (F2, or right click on the table)</source>
        <translation>Zar at (F2, ya da masaya sağ tıkla)</translation>
    </message>
    <message>
        <source>Pass the dice (P)</source>
        <translation>Zarları devret (P)</translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation>Koşunun hızı</translation>
    </message>
    <message>
        <source>How fast a run goes: full speed on the left, Auto-Roll on the right</source>
        <translation>Bir koşunun hızı: solda tam hız, sağda Auto-Roll</translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsHistogram</name>
    <message>
        <source># S e s s i o n s</source>
        <translation>O t u r u m   s a y ı s ı</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>ortalama</translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions</source>
        <translation>
            <numerusform>%1 oturum</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3, %4% at or below</source>
        <translation>%1 - %2: %3, buraya dek yüzde %4</translation>
    </message>
    <message>
        <source>No sessions</source>
        <translation>Oturum yok</translation>
    </message>
    <message>
        <source>Histogram of the sessions</source>
        <translation>Oturumların histogramı</translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsLogScreen</name>
    <message>
        <source>Lo&amp;g</source>
        <translation>&amp;Günlük</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Yeni</translation>
    </message>
    <message>
        <source>N&amp;ew (all players)</source>
        <translation>Y&amp;eni (tüm oyuncular)</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Aç ...</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>&amp;Farklı kaydet ...</translation>
    </message>
    <message>
        <source>&amp;Merge ...</source>
        <translation>&amp;Birleştir ...</translation>
    </message>
    <message>
        <source>&amp;Delete ...</source>
        <translation>&amp;Sil ...</translation>
    </message>
    <message>
        <source>Delete a&amp;ll ...</source>
        <translation>&amp;Tümünü sil ...</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>A&amp;ra</translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation>A&amp;ra ...</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>&amp;Sonrakini bul</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>Ö&amp;ncekini bul</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>S&amp;eçenekler</translation>
    </message>
    <message>
        <source>Set &amp;break-point ...</source>
        <translation>&amp;Sınır koy ...</translation>
    </message>
    <message>
        <source>Graph bar &amp;width</source>
        <translation>Çubuk &amp;genişliği</translation>
    </message>
    <message>
        <source>&amp;Fine</source>
        <translation>&amp;İnce</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation>&amp;Orta</translation>
    </message>
    <message>
        <source>&amp;Wide</source>
        <translation>&amp;Geniş</translation>
    </message>
    <message>
        <source>&amp;Extra wide</source>
        <translation>&amp;Çok geniş</translation>
    </message>
    <message>
        <source>&amp;Normal curve</source>
        <translation>&amp;Normal eğri</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Oyuncu</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Ölçü</translation>
    </message>
    <message>
        <source> Histogram</source>
        <translation> Histogram</translation>
    </message>
    <message>
        <source> Data</source>
        <translation> Veri</translation>
    </message>
    <message>
        <source>How much of the log has been read</source>
        <translation>Günlüğün ne kadarı okundu</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;İptal</translation>
    </message>
    <message>
        <source>Net $</source>
        <translation>Net $</translation>
    </message>
    <message>
        <source>Handle $</source>
        <translation>Hacim $</translation>
    </message>
    <message>
        <source>Advantage %</source>
        <translation>Avantaj %</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Kazanılan</translation>
    </message>
    <message>
        <source>Broke-even</source>
        <translation>Başa baş</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Kaybedilen</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Toplam</translation>
    </message>
    <message>
        <source>These sessions take part</source>
        <translation>Bu oturumlar sayılır</translation>
    </message>
    <message>
        <source>Leave out outliers</source>
        <translation>Aykırıları dışarıda bırak</translation>
    </message>
    <message>
        <source>From</source>
        <translation>En az</translation>
    </message>
    <message>
        <source>To</source>
        <translation>En çok</translation>
    </message>
    <message>
        <source>value</source>
        <translation>değer</translation>
    </message>
    <message>
        <source>standard deviations</source>
        <translation>standart sapma</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>Deviations</source>
        <translation>Sapma</translation>
    </message>
    <message>
        <source>Lowest value that takes part</source>
        <translation>Sayılan en küçük değer</translation>
    </message>
    <message>
        <source>Highest value that takes part</source>
        <translation>Sayılan en büyük değer</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>From, to</source>
        <translation>En az, en çok</translation>
    </message>
    <message>
        <source>Searching ...</source>
        <translation>Aranıyor ...</translation>
    </message>
    <message>
        <source>The figures are not of this choice: the calculation was cancelled.</source>
        <translation>Rakamlar bu seçimin değil: hesap iptal edildi.</translation>
    </message>
    <message>
        <source>The statistics could not be calculated.</source>
        <translation>İstatistik hesaplanamadı.</translation>
    </message>
    <message>
        <source>&amp;Calculate</source>
        <translation>&amp;Hesapla</translation>
    </message>
    <message>
        <source>no player</source>
        <translation>oyuncu yok</translation>
    </message>
    <message>
        <source>Sessions Log (%1)</source>
        <translation>Oturum günlüğü (%1)</translation>
    </message>
    <message>
        <source>Near the middle one of the values, which is not known</source>
        <translation>Ortaya yakın değerlerden biri, hangisi olduğu bilinmiyor</translation>
    </message>
    <message>
        <source>Break-point: %1</source>
        <translation>Sınır: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions</source>
        <translation>
            <numerusform>%1 oturum</numerusform>
        </translation>
    </message>
    <message>
        <source>Statistic</source>
        <translation>İstatistik</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Tessaryn Sessions Log</source>
        <translation>Tessaryn oturum günlüğü</translation>
    </message>
    <message>
        <source>Player:  %1</source>
        <translation>Oyuncu:  %1</translation>
    </message>
    <message>
        <source>Log:  %1</source>
        <translation>Günlük:  %1</translation>
    </message>
    <message>
        <source>Values from %1 to %2</source>
        <translation>%1 - %2 arası değerler</translation>
    </message>
    <message>
        <source>Print Sessions Log Raw Data</source>
        <translation>Oturum günlüğünün ham verisini yazdır</translation>
    </message>
    <message>
        <source>Print Sessions Log</source>
        <translation>Oturum günlüğünü yazdır</translation>
    </message>
    <message>
        <source>Number of sessions: %1</source>
        <translation>Oturum sayısı: %1</translation>
    </message>
    <message>
        <source>Number of pages: %1</source>
        <translation>Sayfa sayısı: %1</translation>
    </message>
    <message>
        <source>Saving the log ...</source>
        <translation>Günlük kaydediliyor ...</translation>
    </message>
    <message>
        <source>Merging the logs ...</source>
        <translation>Günlükler birleştiriliyor ...</translation>
    </message>
    <message>
        <source>Deleting sessions ...</source>
        <translation>Oturumlar siliniyor ...</translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsRows</name>
    <message>
        <source>Sessions</source>
        <translation>Oturumlar</translation>
    </message>
    <message>
        <source>Session at the top</source>
        <translation>En üstteki oturum</translation>
    </message>
    <message>
        <source>Session #</source>
        <translation>Oturum no</translation>
    </message>
    <message>
        <source># Rolls</source>
        <translation>Atış sayısı</translation>
    </message>
    <message>
        <source>Include</source>
        <translation>Say</translation>
    </message>
    <message>
        <source>Standard Deviations</source>
        <translation>Standart sapma</translation>
    </message>
    <message>
        <source>No sessions</source>
        <translation>Oturum yok</translation>
    </message>
</context>
<context>
    <name>tessaryn::SettleBetScreen</name>
    <message>
        <source>&amp;Take Bet and Winnings</source>
        <translation>Bahsi ve kazancı &amp;al</translation>
    </message>
    <message>
        <source>&amp;Same Bet - Take Winnings</source>
        <translation>&amp;Aynı bahis - kazancı al</translation>
    </message>
    <message>
        <source>Press 1 &amp;Unit - Add $%1 to Bet</source>
        <translation>1 &amp;birim artır - bahse $%1 ekle</translation>
    </message>
    <message>
        <source>Press - Add Winnings to &amp;Double Bet</source>
        <translation>Artır - kazançla &amp;ikiye katla</translation>
    </message>
    <message>
        <source>Parlay - Add &amp;All Winnings to Bet</source>
        <translation>Parlay - &amp;tüm kazancı bahse ekle</translation>
    </message>
    <message>
        <source>Sa&amp;me Bet:</source>
        <translation>A&amp;ynı bahis:</translation>
    </message>
    <message>
        <source>&amp;Bet:</source>
        <translation>Ba&amp;his:</translation>
    </message>
    <message>
        <source>&amp;No Bet/Take Remainder (if any)</source>
        <translation>Bahis yok/&amp;kalanı al (varsa)</translation>
    </message>
    <message>
        <source>&amp;Same Bet</source>
        <translation>&amp;Aynı bahis</translation>
    </message>
    <message>
        <source>Bet &amp;Remainder (if any)</source>
        <translation>Kalanı &amp;oyna (varsa)</translation>
    </message>
    <message>
        <source>Same Bet Plus 1 &amp;Unit - Add $%1 to Bet</source>
        <translation>Aynı bahis artı 1 &amp;birim - bahse $%1 ekle</translation>
    </message>
    <message>
        <source>&amp;Double Bet</source>
        <translation>Bahsi &amp;ikiye katla</translation>
    </message>
    <message>
        <source>Half of the bet wins:</source>
        <translation>Bahsin yarısı kazanır:</translation>
    </message>
    <message>
        <source>Half of the bet loses:</source>
        <translation>Bahsin yarısı kaybeder:</translation>
    </message>
    <message>
        <source>A quarter of the bet wins:</source>
        <translation>Bahsin dörtte biri kazanır:</translation>
    </message>
    <message>
        <source>Three quarters of the bet lose:</source>
        <translation>Bahsin dörtte üçü kaybeder:</translation>
    </message>
    <message>
        <source>A fifth of the bet wins:</source>
        <translation>Bahsin beşte biri kazanır:</translation>
    </message>
    <message>
        <source>Four fifths of the bet lose:</source>
        <translation>Bahsin beşte dördü kaybeder:</translation>
    </message>
    <message>
        <source>Points made:</source>
        <translation>Yapılan point&apos;ler:</translation>
    </message>
    <message>
        <source>Line wins:</source>
        <translation>Çizgi kazançları:</translation>
    </message>
    <message>
        <source>Different points made:</source>
        <translation>Yapılan farklı point&apos;ler:</translation>
    </message>
    <message>
        <source>Payoff at %1 for %2:</source>
        <translation>Ödeme %1 for %2:</translation>
    </message>
    <message>
        <source>Payoff at %1 to %2:</source>
        <translation>Ödeme %1 to %2:</translation>
    </message>
    <message>
        <source>Bet:</source>
        <translation>Bahis:</translation>
    </message>
    <message>
        <source>Bet lost:</source>
        <translation>Kaybedilen bahis:</translation>
    </message>
    <message>
        <source>%1% vig:</source>
        <translation>Yüzde %1 vig:</translation>
    </message>
    <message>
        <source>Net payoff:</source>
        <translation>Net ödeme:</translation>
    </message>
    <message>
        <source>Net loss:</source>
        <translation>Net kayıp:</translation>
    </message>
    <message>
        <source>Net payoff (rounded):</source>
        <translation>Net ödeme (yuvarlanmış):</translation>
    </message>
    <message>
        <source>Net loss (rounded):</source>
        <translation>Net kayıp (yuvarlanmış):</translation>
    </message>
    <message>
        <source>ODDS OFF</source>
        <translation>ODDS OFF</translation>
    </message>
    <message>
        <source>WINNER</source>
        <translation>KAZANDI</translation>
    </message>
    <message>
        <source>LOSER</source>
        <translation>KAYBETTİ</translation>
    </message>
    <message>
        <source>%1, bet %2</source>
        <translation>%1, bahis %2</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>The odds weren&apos;t working: nothing was won or lost.</source>
        <translation>Odds çalışmıyordu: bir şey kazanılmadı ya da kaybedilmedi.</translation>
    </message>
    <message>
        <source>This bet is over. It comes down with every choice.</source>
        <translation>Bu bahis bitti. Her seçimde iner.</translation>
    </message>
    <message>
        <source>The same &amp;for the rest of this roll</source>
        <translation>Bu atışın &amp;kalanı için de aynı</translation>
    </message>
    <message>
        <source>All other winners of this roll are treated alike</source>
        <translation>Bu atışın öteki tüm kazananlarına aynısı yapılır</translation>
    </message>
    <message>
        <source>All other losers of this roll are treated alike</source>
        <translation>Bu atışın öteki tüm kaybedenlerine aynısı yapılır</translation>
    </message>
    <message>
        <source>Don&apos;t as&amp;k again (Auto-Play, F3)</source>
        <translation>Bir daha &amp;sorma (Auto-Play, F3)</translation>
    </message>
    <message>
        <source>Becomes the player&apos;s choice on the Auto-Play screen</source>
        <translation>Oyuncunun Auto-Play ekranındaki seçimi olur</translation>
    </message>
</context>
<context>
    <name>tessaryn::SettleSheet</name>
    <message>
        <source>the point is set</source>
        <translation>point kondu</translation>
    </message>
    <message>
        <source>a natural</source>
        <translation>natural</translation>
    </message>
    <message>
        <source>craps</source>
        <translation>craps</translation>
    </message>
    <message>
        <source>seven-out</source>
        <translation>seven-out</translation>
    </message>
    <message>
        <source>point made</source>
        <translation>point yapıldı</translation>
    </message>
    <message>
        <source>the point stays %1</source>
        <translation>point %1 kalır</translation>
    </message>
    <message>
        <source>Settle the roll</source>
        <translation>Atışı sonuçlandır</translation>
    </message>
    <message>
        <source>Roll %1: %2, %3</source>
        <translation>Atış %1: %2, %3</translation>
    </message>
    <message>
        <source>Decided bets</source>
        <translation>Sonuçlanan bahisler</translation>
    </message>
    <message>
        <source>%1 lost %2</source>
        <translation>%1, %2 kaybetti</translation>
    </message>
    <message>
        <source>%1 won %2</source>
        <translation>%1, %2 kazandı</translation>
    </message>
    <message>
        <source>WINNER</source>
        <translation>KAZANDI</translation>
    </message>
    <message>
        <source>This bet is over. It comes down with every choice.</source>
        <translation>Bu bahis bitti. Her seçimde iner.</translation>
    </message>
    <message>
        <source>The odds weren&apos;t working: nothing was won or lost.</source>
        <translation>Odds çalışmıyordu: bir şey kazanılmadı ya da kaybedilmedi.</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>Don&apos;t as&amp;k again: keep these choices (Auto-Play, F3)</source>
        <translation>Bir daha &amp;sorma: bu seçimleri sakla (Auto-Play, F3)</translation>
    </message>
    <message>
        <source>Each player&apos;s first winner and first loser here become the choices of Auto-Play</source>
        <translation>Her oyuncunun buradaki ilk kazananı ve ilk kaybedeni Auto-Play seçimi olur</translation>
    </message>
    <message>
        <source>One &amp;at a time</source>
        <translation>&amp;Tek tek</translation>
    </message>
    <message>
        <source>All &amp;same</source>
        <translation>&amp;Hepsi aynı</translation>
    </message>
    <message>
        <source>The first winner&apos;s choice for all winners, the first loser&apos;s for all losers</source>
        <translation>Tüm kazananlara ilk kazananın, tüm kaybedenlere ilk kaybedenin seçimi</translation>
    </message>
    <message>
        <source>&amp;Done (Enter)</source>
        <translation>&amp;Bitti (Enter)</translation>
    </message>
    <message>
        <source>Bets decided: %1</source>
        <translation>Sonuçlanan bahisler: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::SortChoice</name>
    <message>
        <source>Sort by</source>
        <translation>Sırala</translation>
    </message>
    <message>
        <source>Table order</source>
        <translation>Masa sırası</translation>
    </message>
</context>
<context>
    <name>tessaryn::TableWidget</name>
    <message>
        <source>Craps table</source>
        <translation>Craps masası</translation>
    </message>
    <message>
        <source>Bet amount</source>
        <translation>Bahis tutarı</translation>
    </message>
</context>
<context>
    <name>tessaryn::ToolDock</name>
    <message>
        <source>Print, copy, place</source>
        <translation>Yazdır, kopyala, yer</translation>
    </message>
    <message>
        <source>A window of its own</source>
        <translation>Kendi penceresi</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>tessaryn::TurboPanel</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Dur</translation>
    </message>
    <message>
        <source>Turbo-Roll Active</source>
        <translation>Turbo-Roll çalışıyor</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Atış</translation>
    </message>
    <message>
        <source>Rolls a second</source>
        <translation>Saniyede atış</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Süre</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopEditor</name>
    <message>
        <source>Script</source>
        <translation>Betik</translation>
    </message>
    <message>
        <source>%1  %2%</source>
        <translation>%1  yüzde %2</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopSteps</name>
    <message>
        <source>&amp;Wait after each statement</source>
        <translation>Her deyimden sonra &amp;bekle</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Sonraki</translation>
    </message>
    <message>
        <source>&amp;Go on</source>
        <translation>D&amp;evam</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Dur</translation>
    </message>
    <message>
        <source>Statements carried out</source>
        <translation>Yürütülen deyimler</translation>
    </message>
    <message>
        <source>Auto-Bet Steps</source>
        <translation>Auto-Bet adımları</translation>
    </message>
    <message>
        <source>Auto-Bet Steps (%1)</source>
        <translation>Auto-Bet adımları (%1)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Satır %1: %2</translation>
    </message>
    <message>
        <source>Values: %1</source>
        <translation>Değerler: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopTrial</name>
    <message>
        <source>Try it</source>
        <translation>Dene</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Atış</translation>
    </message>
    <message>
        <source>rolls</source>
        <translation>atış</translation>
    </message>
    <message>
        <source>Tr&amp;y it</source>
        <translation>De&amp;ne</translation>
    </message>
    <message>
        <source>Same &amp;dice again</source>
        <translation>Yine aynı &amp;zarlar</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>The script runs on a copy of the table; the game stays as it is.</source>
        <translation>Betik masanın bir kopyasında çalışır; oyun olduğu gibi kalır.</translation>
    </message>
    <message>
        <source>Bets of the trial</source>
        <translation>Denemenin bahisleri</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Bahis</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Kazanılan</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Kaybedilen</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Net</translation>
    </message>
    <message>
        <source>Net %</source>
        <translation>Net %</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Du&amp;r</translation>
    </message>
    <message>
        <source>%1 of %2 bet</source>
        <translation>%2 kondu, net %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls in %2 s</source>
        <translation>
            <numerusform>%2 saniyede %1 atış</numerusform>
        </translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>durduruldu</translation>
    </message>
    <message numerus="yes">
        <source>%1 (line %2, %3 times)</source>
        <translation>
            <numerusform>%1 (satır %2, %3 kez)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Run before: %1, %2 rolls</source>
        <translation>
            <numerusform>Önceki koşu: %1, %2 atış</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopWatch</name>
    <message>
        <source>Watch</source>
        <translation>İzleme</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Ad</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Değer</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Önce</translation>
    </message>
    <message>
        <source>Add a name</source>
        <translation>Ad ekle</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopWindow</name>
    <message>
        <source>Logic</source>
        <translation>Mantık</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Değişkenler</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>İşlevler</translation>
    </message>
    <message>
        <source>Modifiers</source>
        <translation>Niteleyiciler</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Eylemler</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Dosya</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Yeni</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Aç ...</translation>
    </message>
    <message>
        <source>Sa&amp;mples</source>
        <translation>Ö&amp;rnekler</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Kaydet</translation>
    </message>
    <message>
        <source>Save &amp;as ...</source>
        <translation>&amp;Farklı kaydet ...</translation>
    </message>
    <message>
        <source>&amp;Print in colours ...</source>
        <translation>Renkli ya&amp;zdır ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Dü&amp;zen</translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation>A&amp;ra ...</translation>
    </message>
    <message>
        <source>&amp;Replace ...</source>
        <translation>&amp;Değiştir ...</translation>
    </message>
    <message>
        <source>&amp;Copy to</source>
        <translation>&amp;Kopyala</translation>
    </message>
    <message>
        <source>&amp;Paste from</source>
        <translation>Ya&amp;pıştır</translation>
    </message>
    <message>
        <source>&amp;Words that go on</source>
        <translation>Devam eden &amp;sözcükler</translation>
    </message>
    <message>
        <source>P&amp;ut in the proposal</source>
        <translation>Ö&amp;neriyi koy</translation>
    </message>
    <message>
        <source>&amp;Meaning of the word</source>
        <translation>Sö&amp;zcüğün anlamı</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>Ça&amp;lıştır</translation>
    </message>
    <message>
        <source>&amp;Check script</source>
        <translation>Betiği &amp;denetle</translation>
    </message>
    <message>
        <source>&amp;Activate all scripts</source>
        <translation>Tüm betikleri &amp;etkinleştir</translation>
    </message>
    <message>
        <source>Run &amp;one cycle</source>
        <translation>Bir &amp;tur çalıştır</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <translation>&amp;Adım</translation>
    </message>
    <message>
        <source>Run to the c&amp;ursor</source>
        <translation>&amp;İmlece dek çalıştır</translation>
    </message>
    <message>
        <source>&amp;Break-point</source>
        <translation>&amp;Kesme noktası</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Du&amp;r</translation>
    </message>
    <message>
        <source>Tr&amp;y it</source>
        <translation>De&amp;ne</translation>
    </message>
    <message>
        <source>&amp;Permissions ...</source>
        <translation>İ&amp;zinler ...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Görünüm</translation>
    </message>
    <message>
        <source>Show &amp;steps</source>
        <translation>&amp;Adımları göster</translation>
    </message>
    <message>
        <source>&amp;Line numbers</source>
        <translation>Satır &amp;numaraları</translation>
    </message>
    <message>
        <source>Lists of &amp;words</source>
        <translation>Sö&amp;zcük listeleri</translation>
    </message>
    <message>
        <source>&amp;Auto-indent</source>
        <translation>&amp;Otomatik girinti</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Şimdi: %1</translation>
    </message>
    <message>
        <source>P&amp;layer:</source>
        <translation>O&amp;yuncu:</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Oyuncu</translation>
    </message>
    <message>
        <source>A&amp;ctive</source>
        <translation>Etk&amp;in</translation>
    </message>
    <message>
        <source>Check Script</source>
        <translation>Betiği denetle</translation>
    </message>
    <message>
        <source>Run one cycle</source>
        <translation>Bir tur çalıştır</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Adım</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Dur</translation>
    </message>
    <message>
        <source>Below the script</source>
        <translation>Betiğin altında</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Sorunlar</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Sözcükler</translation>
    </message>
    <message>
        <source>Logged bets</source>
        <translation>Not edilen bahisler</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Ara</translation>
    </message>
    <message>
        <source>Words of the language</source>
        <translation>Dilin sözcükleri</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Sözcük</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Anlamı</translation>
    </message>
    <message>
        <source>Log &amp;my bets</source>
        <translation>&amp;Bahislerimi not et</translation>
    </message>
    <message>
        <source>When they are made</source>
        <translation>Ne zaman konduysa</translation>
    </message>
    <message>
        <source>As they stand</source>
        <translation>Olduğu gibi</translation>
    </message>
    <message>
        <source>On the come-out</source>
        <translation>Come-out&apos;ta</translation>
    </message>
    <message>
        <source>After a point</source>
        <translation>Point&apos;ten sonra</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Ekle</translation>
    </message>
    <message>
        <source>Save ...</source>
        <translation>Kaydet ...</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Boşalt</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Satır %1, sütun %2</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 hata</translation>
    </message>
    <message>
        <source>Auto-Bet</source>
        <translation>Auto-Bet</translation>
    </message>
    <message>
        <source>Nobody is at the table</source>
        <translation>Masada kimse yok</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>adsız</translation>
    </message>
    <message>
        <source>Auto-Bet - %1 - %2</source>
        <translation>Auto-Bet - %1 - %2</translation>
    </message>
    <message>
        <source>%1, not saved</source>
        <translation>%1, kaydedilmedi</translation>
    </message>
    <message>
        <source>may act for other players</source>
        <translation>başka oyuncular adına oynayabilir</translation>
    </message>
    <message>
        <source>may start sessions</source>
        <translation>oturum başlatabilir</translation>
    </message>
    <message>
        <source>may use files of dice</source>
        <translation>zar dosyaları kullanabilir</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Satır</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Deyim</translation>
    </message>
    <message>
        <source>&amp;File ...</source>
        <translation>&amp;Dosya ...</translation>
    </message>
    <message>
        <source>Ctrl+. puts in &quot;%1&quot;</source>
        <translation>Ctrl+. &quot;%1&quot; koyar</translation>
    </message>
    <message>
        <source>Problems (1)</source>
        <translation>Sorunlar (1)</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>&amp;Son kullanılanlar</translation>
    </message>
    <message>
        <source>&amp;Counts of the lines</source>
        <translation>Satır &amp;sayımları</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Henüz yok</translation>
    </message>
</context>
</TS>
