<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fi" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Ikkunat, tiedostot ja yhteydet</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Asetustiedosto</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Asetusprofiilit</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Asiakastuen tiedostot</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Auringonnousu ja -lasku</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Rajat ja vyöhykkeet</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Ohjelmisto</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Tämän näytön ohjelmisto</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Asetukset, yksiköt ja lokit</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Päätteen kello; sitä ei ole asetettu.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Kello on asetettu käsin.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Vastaanotin asettaa kellon.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Tällaista päiväystä tai aikaa ei ole.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Päiväys on yli 68 vuoden päässä päätteen kellosta.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Kelloa ei voitu tallentaa.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Vuosi</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Kuukausi</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Päivä</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Tunti</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuutti</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Päiväys ja aika</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Aika</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: enemmän</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: vähemmän</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Aseta</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: vähemmän</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: enemmän</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Edellinen</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Edellinen väri</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Alkuarvo</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Värin numerot</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Sävy</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Kylläisyys</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Kirkkaus</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Päivä</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Yö</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>pohjana %1: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>päällä %1: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, liian pieni: vähintään %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Muutettu molemmissa</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Tässä</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profiili</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>Käynnistä uudelleen</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Näytön kirjasimet</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>Näytön näppäimistö</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Työ</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Lohkot</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Vastaanotin</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Lokit</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Asetukset</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>vapaana %1 / %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Ei tiedossa</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Ei muistitikkua</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Asiakkaat</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Uusi asiakas</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Ei asiakkaita.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Tilat</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Uusi tila</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Ei tiloja.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Lohkot</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Uusi lohko</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Ei lohkoja.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Tehtävät</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Uusi tehtävä</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Ei tehtäviä.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Poistetaanko %1 ja kaikki sen sisältö?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Vaihda nimi tai poista: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Vaihda nimi: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Poista kaikki</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Tiedot asiakastuelle: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Kokeile: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Tämä nimi ei ole mahdollinen.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>Nimi on tyhjä.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Tämä nimi tarkoittaa toista kansiota.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>Nimessä ei saa olla %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>Nimessä on näkymätön merkki.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>Nimessä on epätäydellinen merkki.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>Nimen lopussa ei saa olla pistettä eikä väliä.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>Nimen alussa ei saa olla väliä.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Muistitikulla ei voi olla tämän nimistä tiedostoa.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Nimi on liian pitkä.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 on jo olemassa.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 on aktiivinen, ja siinä on %n tiedosto.</numerusform>
            <numerusform>%2 on aktiivinen, ja siinä on %n tiedostoa.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 sisältää %n tiedoston.</numerusform>
            <numerusform>%2 sisältää %n tiedostoa.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 on aktiivinen.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 ei ole enää olemassa.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Muistitikku ei erota näitä: %2, %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Toinen ohjelma käsittelee lohkoja. Yritä myöhemmin uudelleen.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Valintaa ei voitu tallentaa.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 ei ole tiedosto eikä kansio.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>Tiedostoa on muokattu, tai se on vioittunut.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>%1 ei ole luettavissa. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>Tiedosto on muuta lajia.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Tiedosto on tyhjä.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Tiedoston loppu puuttuu.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Tiedosto on vioittunut.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>Tiedosto ei ole täydellinen.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>Tiedosto on ohjelmiston toisesta versiosta.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>Tiedostossa on mahdoton arvo: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Tiedostossa on asetus kahdesti: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Tämä osoite ei ole mahdollinen: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>Laitetta ei ole.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Se ei ole sallittua, tai toinen ohjelma käyttää sitä.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Toinen ohjelma käyttää sitä.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Sitä ei voi lukea.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Se on irrotettu.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Se ei ole sarjaporttilaite, tai tämä nopeus ei ole mahdollinen.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>Sarjaportissa on vika (numero %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>%1 on vioittunut tai muuta lajia.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>%1 on ohjelmiston toisesta versiosta.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>%1 on vioittunut.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>%1 ei käytä WGS84-koordinaatteja.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>%1 ei ole täydellinen. Puuttuu: %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>%1 ei sisällä alueita.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Toisen ohjelman käytössä: %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A ja B ovat liian lähellä tai liian kaukana toisistaan.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Toinen ohjelma on lukinnut sen.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>Sitä ei ole enää olemassa.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 ei ole enää olemassa.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>%1 ei ole kirjoitettavissa. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 ei ole kirjoitettavissa.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>Asetustiedostossa on virhe (numero %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>%1: avaaminen ei onnistu. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>%1: luominen ei onnistu. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>%1: kopiointi ei onnistu. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>%1: nimeä ei voi vaihtaa. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>%1: poisto ei onnistu. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>Levy on täynnä.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>Levyssä on vika.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>Levyä voi vain lukea.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Se ei ole sallittua.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Sitä ei voi avata.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>Se on vioittunut.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>Sitä ei ole.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>Se on jo olemassa.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Se on kansio.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Se ei ole kansio.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>Kansio ei ole tyhjä.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Tiedosto on liian suuri.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Liian monta tiedostoa on auki.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Keskusmuistia on liian vähän.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Se ei ole siellä mahdollista.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>Laite torjuu yhteyden.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>Laite on katkaissut yhteyden.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Tässä osoitteessa ei ole laitetta.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>Verkkoon ei saada yhteyttä.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>Laite ei vastaa.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Se on linkki toiseen paikkaan.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Siihen johtaa liian monta linkkiä.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Vaihda nimi</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Poista</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Uusi</translation>
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
        <translation>Vähintään %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Enintään %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Tämä ei ole vielä luku.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Liian suuri.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Liian pieni.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>nyt %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Aseta</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Desimaalierotin</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus tai miinus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Poista viimeinen merkki</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Tyhjennä</translation>
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
        <translation>Aseta A, linjan ensimmäinen pää, tähän</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Aseta B, linjan toinen pää, tähän</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Aseta lippu tähän</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Uusi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Pysäytä</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 vasemmalle</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 oikealle</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Näyttö on lukittu. Avaa lukitus pitämällä painiketta painettuna.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Avaa lukitus</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Lokit</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Tapahtumat</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Vastaanotin</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Jatka</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Tauko</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Ei vielä rivejä.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Työkoneen leveys</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Määrää vierekkäiset ajolinjat ja tehdyn pinta-alan</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Työkone antennin takana</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>Miten kaukana ajoneuvon paikan takana maata käsitellään</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Ohjaamonäyttö</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Lähennä</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Loitonna</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Ajosuunta ylhäällä. Käännä pohjoinen ylös</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Pohjoinen ylhäällä. Käännä ajosuunta ylös</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Ajoneuvo keskelle</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Aseta</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Rivit ylös</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Rivit alas</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: takaisin alkuarvoon</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Avaa</translation>
    </message>
</context>
<context>
    <name>ParameterTexts</name>
    <message>
        <source>h</source>
        <translation>h</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>an absolute path that ends in &quot;/&quot; and is not &quot;/&quot;</source>
        <translation>absoluuttinen polku, joka päättyy merkkiin &quot;/&quot; eikä ole &quot;/&quot;</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>absoluuttinen polku</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>UUID pienin kirjaimin, esim. 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N tai absoluuttinen polku</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true tai false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>aika UTC-aikana, esim. 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>väri: #rrggbb, #aarrggbb tai nimi, esim. navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 … %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Ei kokonaisluku.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Pienempi kuin pienin arvo.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Suurempi kuin suurin arvo.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Tämä ei kelpaa tiedoston nimeksi. Kokeile: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Ei kelpaa. Odotetaan: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>nimi, jossa ei ole %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>kokonaisluku</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Vähintään %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>käyttäjä on valinnut UTC-eron; GPS-aika ei silloin laske sitä</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metriset yksiköt; muuten US-yksiköt tai brittiläiset</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>US-mitat, kun yksiköt eivät ole metrisiä; muuten brittiläiset mitat</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>sijainnit asteina, minuutteina ja sekunteina; muuten desimaaliasteina</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>24 tunnin kello; muuten 12 tuntia sekä am ja pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>päiväykset, joissa kuukausi on ennen päivää</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>päivän värit; muuten yön</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>kartta kääntyy ajoneuvon mukana; muuten pohjoinen on ylhäällä</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>paineen yksikkö</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>pinta-alan ja alakohtaisen levitysmäärän yksikkö</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>lyhyiden matkojen yksikkö: leveydet, siirtymät</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>rakeisen aineen tilavuuden yksikkö</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>rakeisen aineen tiheyden yksikkö</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>nesteen tilavuuden, virtauksen ja levitysmäärän yksikkö</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>näytön kieli; muutos vaatii uuden käynnistyksen</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>desimaalipiste tai -pilkku; muutos vaatii uuden käynnistyksen</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>milloin värit vaihtuvat päivän ja yön välillä: vain käsin, auringon noustessa ja laskiessa tai auringon ollessa 6 astetta horisontin alla</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>minkä mukaan näytön kello on asetettu</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>paikallisen ajan UTC-ero, täydet tunnit</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>paikallisen ajan UTC-ero, minuutit tuntien lisäksi, tuntien etumerkillä</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>valopalkin kirkkaus yöllä</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>näytön kirkkaus yöllä</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>painikevalojen kirkkaus yöllä</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: työkoneet ovat ajoneuvonsa kansiossa; muut luvut: omassa kansiossaan</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>NMEA-lokin seuraavan tiedoston numero</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>käyttäjälokin seuraavan tiedoston numero</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>näytön kellon UTC-ero</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>sisäisen levyn kansio; oletuksena datakansiossa</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>siirrettävän levyn liitoskohta; oletuksena datakansiossa</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>päätteen tunniste, joka on sen profiileissa</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>mistä vastaanottimen viestit tulevat</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>arvot kartan vieressä, tässä järjestyksessä</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>vastaanottimen uusin aika viimeiseltä päivältä, jona vastaanotin oli käytössä</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>milloin aurinko viimeksi vaihtoi värit</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>aktiivinen tehtävä</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>aktiivinen lohkon raja</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>aktiivinen suora ajolinja</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>aktiivinen ympyräura</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>aktiivinen ajokäyrä</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>aktiivinen optimilinjojen shape-tiedosto</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>aktiivinen projektilinjojen shape-tiedosto</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>aktiivinen vyöhykkeiden shape-tiedosto</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>aktiivinen ohjausprofiili</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>aktiivinen työkone</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>aktiivinen ajoneuvo</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>aktiivinen ruisku</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>aktiivinen puomin tasaus</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>aktiivinen asiakas</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>aktiivinen tila</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>aktiivinen lohko</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Mittajärjestelmä</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Gallonat ja buššelit</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Pinta-ala</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Paine</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Lyhyet matkat</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Neste</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Rakeiden tilavuus</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Rakeiden tiheys</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Sijainnit</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Määrä ajomatkaa kohti</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Määrän peruste</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Kieli</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Desimaalierotin</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Kellonaika</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Päiväykset</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Aikavyöhyke käsin</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Aikavyöhyke, tunnit</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Aikavyöhyke, minuutit</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Kellon UTC-ero</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Ajan lähde</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Ajan lähde alkaen</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Vastaanottimen uusin aika</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Värit</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Päivä ja yö</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Kartan suunta</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Ruudut</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Valopalkki yöllä</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Näyttö yöllä</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Painikevalot yöllä</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Aurinko vaihtoi viimeksi</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Asiakas</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Tila</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Lohko</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Tehtävä</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Ajoneuvo</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Työkone</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Ruisku</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Puomin tasaus</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Ohjausprofiili</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Lohkon raja</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>A-B-linja</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Ympyräura</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Käyrä</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optimilinjat</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Projektilinjat</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Vyöhykkeet</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Vastaanottimen osoite</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Sisäinen levy</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Muistitikku</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Työkonekansio</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Seuraava NMEA-loki</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Seuraava käyttäjäloki</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Tunniste</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Teksti</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Tekstien väri</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Otsikko</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Otsikoiden väri</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Tausta</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Taustan väri</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Painike</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Painikkeiden väri</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Painiketeksti</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Painiketekstien väri</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Kartta</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Kartan pohjan väri</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Ruudukko</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Kartan ruudukon väri</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Käsitelty</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Käsitellyn alan väri</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Ajoneuvo kartalla</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Ajoneuvon väri</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Ajolinja</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Ajolinjan väri</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Hiusristikko</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Hiusristikon väri</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Ulkoraja</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Lohkon ulkorajan väri</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Sisäraja</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Lohkon sisällä olevien rajojen väri</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Muut rajat</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Ei-aktiivisten rajojen väri</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Kieltovyöhyke</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Vältettävien vyöhykkeiden väri</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Taustakuva</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Taustakuvan numero</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>mihin ruiskun levitysmäärä suhteutetaan</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>nesteen levitysmäärä 100 m:n tai 100 yd:n ajomatkaa kohti, kun ajomatka on sen peruste</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>mistä lähtien kello on saanut ajan sieltä</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrinen</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US / brittiläinen</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Brittiläinen</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Ast., min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Asteet</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 tuntia</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Kuukausi ensin</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Päivä ensin</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Päivä</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Yö</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Ajosuunta ylös</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Pohjoinen ylös</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Päällä</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Pois</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Kyllä</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ei</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Ajomatka</translation>
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
        <translation>Hehtaari</translation>
    </message>
    <message>
        <source>Acre</source>
        <translation>Eekkeri</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Tuuma</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Jalka</translation>
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
        <translation>US-buššeli</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>UK-buššeli</translation>
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
        <translation>Piste</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Pilkku</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Käsin</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Auringonlasku</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Hämärä</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Ei asetettu</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Käyttäjä</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Vastaanotin</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Levitysmäärä</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Nopeus</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Tehty ala</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Ala jäljellä</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Työsaavutus</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Virtaus</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Lämpötila</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Matka</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Sijainti</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Aika</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Yksiköt</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Määrät</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Alue</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Kello</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Väriteemat</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Näyttö</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Valinnat</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Tallennustila</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Lokit</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Pääte</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, päivällä</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, yöllä</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Lokeista katoaa rivejä: levy on täynnä tai sille ei voi kirjoittaa.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Tallennus on pois päältä, koska tilaa on liian vähän.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Asetusten muutoksia ei ole vielä tallennettu. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>Päätteen levy on melkein täynnä. Vapaana: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Tuo</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>Näytössä on jo nämä asetukset.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Muutettu tässä ja profiilissa</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Minkä arvon seuraavat asetukset saavat</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Tässä</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Profiili</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Profiilit</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Vie</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Muistitikulla ei ole profiilia.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Muistitikkua ei ole kytketty.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Profiilin nimi</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Pinta-ala</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Työsaavutus</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Nopeus</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Matka</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Pieni matka</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Ajomatka</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Korkeus</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Lämpötila</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Paine</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Levitysmäärä</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Tavoitemäärä</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Määrä ja poikkeama</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Pieni määrä</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Virtaus</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Pieni virtaus</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Tilavuus</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Pieni tilavuus</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Rakeiden tilavuus</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Paino</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Paino alaa kohti</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Paino alaa kohti ja poikkeama</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Syöttö</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Typpi</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Typpi alaa kohti</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Siemeniä alaa kohti</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Tiheys</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Rakeiden tiheys</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Tilavuus kierrosta kohti</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Paino kierrosta kohti</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Virtausmittari</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Pyöräanturi</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Nopeusanturi</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Leveysaste</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Pituusaste</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Kesto</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prosentti</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Peruuta</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>tavoite %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Pois</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Yhdistää</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Vastaanottaa</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Hiljaa</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Kadonnut</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Päättynyt</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Ei paikannusta</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Arvioitu</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Käsin</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simuloitu</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Vastaanotin ei lähetä mitään.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Vastaanotin on kadonnut ja sitä etsitään. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Vastaanotinta ei voi lukea. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Simuloitu lohko on valmis.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Vastaanottimen tallenne on lopussa.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Vastaanotin</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Pysäytä</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Käynnistä</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulaattori</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Tiedosto</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Verkko</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Sarjaportti</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Osoite</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Paikannus</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Ikä</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satelliitit</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Aika (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Rivit</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Viestit</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Tarkistusvirheet</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Vialliset rivit</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Vastaanottimen osoite</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>Päiväys</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Aika</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Aikavyöhyke</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Päiväys ja aika</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Käsin</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Etsi</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Hakusanat</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Sanoilla ei löydy asetusta.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Yksiköt</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Alue</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Värit</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Näyttö</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Kone</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Tallennustila</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Tietoja</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Ruudut</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiilit</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Kaikki asetukset</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Takaisin</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Etsi</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n tavu</numerusform>
            <numerusform>%n tavua</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 kB</source>
        <translation>%1 kt</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 Mt</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 Gt</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 Tt</translation>
    </message>
</context>
<context>
    <name>StateBand</name>
    <message>
        <source>No job</source>
        <translation>Ei tehtävää</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Vastaanotin: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Muistitikku on kytketty</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Lukitse näyttö</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Yön värit</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Päivän värit</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Avaa</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Sisäinen levy</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Muistitikku</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Muistitikkua ei ole kytketty.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Keskusmuisti</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Lokit</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Kirjoittaa kaikki lokit muistitikulle</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Vie</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Vie lokit</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Profiilit</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Vie asetukset toiseen näyttöön tai hakee ne takaisin muistitikulta</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Avaa profiilit</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Asiakastuki</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Kirjoittaa lokit, asetukset ja versiot yhteen tiedostoon; ilman asiakkaiden, tilojen ja lohkojen nimiä</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Kirjoita</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Kirjoita asiakastuen tiedosto ilman nimiä</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Asiakastuki, nimet mukana</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>Sama tiedosto, mukana kaikki nimet ja paikat</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Kirjoita asiakastuen tiedosto nimien kanssa</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Tehtävässä ei ole muuta.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Tämä nimi on jo käytössä.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n tiedosto, %1</numerusform>
            <numerusform>%n tiedostoa, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Asetusta ei voitu vielä tallentaa.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Asetettavaa arvoa ei ole.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>tammi</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>helmi</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>maal.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>huhti</translation>
    </message>
    <message>
        <source>May</source>
        <translation>touko</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>kesä</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>heinä</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>elo</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>syys</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>loka</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>marr.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>joulu</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Uusi kieli näkyy uuden käynnistyksen jälkeen.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Uusi desimaalierotin näkyy uuden käynnistyksen jälkeen.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Valintaa ei voitu tallentaa.</translation>
    </message>
</context>
<context>
    <name>TSystemSettings</name>
    <message>
        <source>J_</source>
        <translation>T_</translation>
    </message>
    <message>
        <source>B_</source>
        <translation>R_</translation>
    </message>
    <message>
        <source>L_</source>
        <translation>L_</translation>
    </message>
    <message>
        <source>P_</source>
        <translation>Y_</translation>
    </message>
    <message>
        <source>C_</source>
        <translation>K_</translation>
    </message>
    <message>
        <source>O_</source>
        <translation>O_</translation>
    </message>
    <message>
        <source>No Vehicle</source>
        <translation>Ei ajoneuvoa</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Ei profiilia</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Ei työkonetta</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Hinattava_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Nimi on tyhjä.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>tammi</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>helmi</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>maal.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>huhti</translation>
    </message>
    <message>
        <source>May</source>
        <translation>touko</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>kesä</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>heinä</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>elo</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>syys</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>loka</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>marr.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>joulu</translation>
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
        <translation>mailia</translation>
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
        <translation>m/min</translation>
    </message>
    <message>
        <source>ft/min</source>
        <translation>ft/min</translation>
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
        <translation>ac/h</translation>
    </message>
    <message>
        <source>ha/hr</source>
        <translation>ha/h</translation>
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
        <translation>L/min</translation>
    </message>
    <message>
        <source>gal/min</source>
        <translation>gal/min</translation>
    </message>
    <message>
        <source>mL/min</source>
        <translation>mL/min</translation>
    </message>
    <message>
        <source>fl.oz/min</source>
        <translation>fl.oz/min</translation>
    </message>
    <message>
        <source>m³/min</source>
        <translation>m³/min</translation>
    </message>
    <message>
        <source>ft³/min</source>
        <translation>ft³/min</translation>
    </message>
    <message>
        <source>t/min</source>
        <translation>t/min</translation>
    </message>
    <message>
        <source>L/rev</source>
        <translation>L/kierr</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/kierr</translation>
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
        <translation>m/puls</translation>
    </message>
    <message>
        <source>ft/pulse</source>
        <translation>ft/puls</translation>
    </message>
    <message>
        <source>pulses/L</source>
        <translation>puls/L</translation>
    </message>
    <message>
        <source>pulses/gal</source>
        <translation>puls/gal</translation>
    </message>
    <message>
        <source>pulses/mL</source>
        <translation>puls/mL</translation>
    </message>
    <message>
        <source>pulses/fl.oz</source>
        <translation>puls/fl.oz</translation>
    </message>
    <message>
        <source>pulses/m³</source>
        <translation>puls/m³</translation>
    </message>
    <message>
        <source>pulses/ft³</source>
        <translation>puls/ft³</translation>
    </message>
    <message>
        <source>pulses/t</source>
        <translation>puls/t</translation>
    </message>
    <message>
        <source>pulses/lb</source>
        <translation>puls/lb</translation>
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
        <translation>kg/min</translation>
    </message>
    <message>
        <source>lb/min</source>
        <translation>lb/min</translation>
    </message>
    <message>
        <source>kgN/min</source>
        <translation>kgN/min</translation>
    </message>
    <message>
        <source>lbN/min</source>
        <translation>lbN/min</translation>
    </message>
    <message>
        <source>kg/rev</source>
        <translation>kg/kierr</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/kierr</translation>
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
        <translation>puls/kgN</translation>
    </message>
    <message>
        <source>pulses/lbN</source>
        <translation>puls/lbN</translation>
    </message>
    <message>
        <source>KS/ha</source>
        <translation>tkpl/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>tkpl/ac</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>min</source>
        <translation>min</translation>
    </message>
    <message>
        <source>hrs</source>
        <translation>h</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>r/min</translation>
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
        <translation>Kriittinen</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Tavallinen</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Vähäinen</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Tämä leveys ei ole työkoneelle mahdollinen.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Tehtävän tiedostoa ei voi käyttää. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Käsitellyn alan tiedot olivat puutteelliset, ja ne jätettiin pois: kaistat %1, tavut %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>Lippujen tiedosto on vioittunut; uusia lippuja ei tallenneta.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Tiedostoa ei voitu tallentaa. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Työkoneen tiedostoa ei voi käyttää. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Linjaa ei ole.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>Linjalla ei ole nimeä.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Ajolinjaa ei voi käyttää. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Ei valittua tehtävää</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Ei valittua tehtävää: käsiteltyä alaa ei tallenneta.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Tehtävän käsiteltyä alaa ei voi käyttää: uutta ei tallenneta.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Käsiteltyä alaa ei voi tallentaa, ja kaistoja katoaa: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>Käsitelty ala pidetään keskusmuistissa, kunnes sen voi tallentaa. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>Tehtävää luetaan vielä.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Ruudut</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Määrä</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Nopeus</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Ala</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Jäljellä</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Työteho</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Virtaus</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Paine</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Lämpö</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Ajettu</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Sijainti</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Aika</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Takaisin alkuvalintaan</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>Siirrä ylemmäs: %1</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Näkyy</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Piilossa</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Mitään ei tuotu: joitakin asetuksia on muutettu sekä tässä että profiilissa.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Muistitikkua ei ole kytketty.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>Muistitikku poistettiin, ennen kuin kaikki oli sillä.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Muistitikulle ei voitu kirjoittaa loppuun asti.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Kansiota %1 ei voi luoda.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Tiedostoa %1 ei voi kirjoittaa.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Lokit ovat muistitikulla (tiedostoja: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Profiilia ei voi käyttää. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Mitään ei tuotu. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Tämä näyttö</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Toinen näyttö</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>Profiili ei ole muistitikulla. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Profiili on muistitikulla: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>Asiakastuen tiedosto ei ole muistitikulla. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Asiakastuen tiedosto on muistitikulla: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Profiili on tuotu (muutettuja asetuksia: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Sitä ei voi käyttää.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Luetaan</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Kirjoitetaan</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Jätä muistitikku paikalleen, kunnes tämä on valmis.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Odotetaan sijaintia</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Kartta</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>Työssä</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Ei työssä</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Työssä. Kytke työkone pois päältä</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Ei työssä. Kytke työkone päälle</translation>
    </message>
</context>
</TS>
