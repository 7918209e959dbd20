<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>Jan</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mär</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Jun</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Jul</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Aug</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Sep</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Okt</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Dez</translation>
    </message>
</context>
<context>
    <name>TSystemSettings</name>
    <message>
        <source>J_</source>
        <translation>J_</translation>
    </message>
    <message>
        <source>B_</source>
        <translation>G_</translation>
    </message>
    <message>
        <source>L_</source>
        <translation>L_</translation>
    </message>
    <message>
        <source>P_</source>
        <translation>P_</translation>
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
        <translation>Kein Fahrzeug</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Kein Profil</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Kein Gerät</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Gezogen_</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>Jan</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>Feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>Mär</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>Apr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>Jun</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>Jul</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>Aug</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>Sep</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>Okt</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>Nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>Dez</translation>
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
        <translation>Meilen</translation>
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
        <translation>L/U</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/U</translation>
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
        <translation>m/pulse</translation>
    </message>
    <message>
        <source>ft/pulse</source>
        <translation>ft/pulse</translation>
    </message>
    <message>
        <source>pulses/L</source>
        <translation>Imp/L</translation>
    </message>
    <message>
        <source>pulses/gal</source>
        <translation>Imp/gal</translation>
    </message>
    <message>
        <source>pulses/mL</source>
        <translation>Imp/mL</translation>
    </message>
    <message>
        <source>pulses/fl.oz</source>
        <translation>Imp/fl.oz</translation>
    </message>
    <message>
        <source>pulses/m³</source>
        <translation>Imp/m³</translation>
    </message>
    <message>
        <source>pulses/ft³</source>
        <translation>Imp/ft³</translation>
    </message>
    <message>
        <source>pulses/t</source>
        <translation>Imp/t</translation>
    </message>
    <message>
        <source>pulses/lb</source>
        <translation>Imp/lb</translation>
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
        <translation>kg/U</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/U</translation>
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
        <translation>Imp/kgN</translation>
    </message>
    <message>
        <source>pulses/lbN</source>
        <translation>Imp/lbN</translation>
    </message>
    <message>
        <source>KS/ha</source>
        <translation>TK/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>TK/ac</translation>
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
        <translation>Std</translation>
    </message>
    <message>
        <source>Hz</source>
        <translation>Hz</translation>
    </message>
    <message>
        <source>rpm</source>
        <translation>U/min</translation>
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
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Geringfügig</translation>
    </message>
</context>
<context>
    <name>ParameterTexts</name>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>eine Farbe: #rrggbb, #aarrggbb oder ein Name wie navy</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>eine Zeit in UTC, etwa 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>an absolute path that ends in &quot;/&quot; and is not &quot;/&quot;</source>
        <translation>ein absoluter Pfad, der auf &quot;/&quot; endet und nicht &quot;/&quot; ist</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>ein absoluter Pfad</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>eine UUID in Kleinbuchstaben, etwa 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N oder ein absoluter Pfad</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Keine ganze Zahl.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Unter dem kleinsten Wert.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Über dem größten Wert.</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Possible is: %1</source>
        <translation>So kann keine Datei heißen. Möglich ist: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Nicht möglich. Erwartet: %1.</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>Measures</source>
        <translation>Maßsystem</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Gallonen und Bushel</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Kurze Strecken</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Flüssigkeit</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulatvolumen</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulatdichte</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Positionen</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Menge je Fahrstrecke</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Bezug der Mengen</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Dezimalzeichen</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Zeitzone von Hand</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Zeitzone, Stunden</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Zeitzone, Minuten</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Uhr gegen UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Quelle der Zeit</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Quelle der Zeit seit</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Neueste Empfängerzeit</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Tag und Nacht</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Kartenrichtung</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Lichtbalken bei Nacht</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Bildschirm bei Nacht</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Tastenlicht bei Nacht</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Von der Sonne geschaltet</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Betrieb</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Fahrzeug</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Spritze</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Gestängeführung</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Lenkprofil</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Feldgrenze</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>A-B-Linie</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Kreisspur</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Optimale Linien</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Projektlinien</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zonen</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Empfängeradresse</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Internes Laufwerk</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Stick</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Geräteordner</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Nächstes NMEA-Protokoll</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Nächstes Bedienprotokoll</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Tastentext</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Bearbeitet</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Fahrzeug auf der Karte</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Leitlinie</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Fadenkreuz</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Außengrenze</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Innengrenze</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Andere Grenzen</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Sperrzone</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Hintergrundbild</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Metrisch</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US oder englisch</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Grad, min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 Stunden</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Monat zuerst</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Tag zuerst</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Fahrtrichtung</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Norden oben</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Fahrstrecke</translation>
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
        <translation>Acre</translation>
    </message>
    <message>
        <source>m, mm</source>
        <translation>m, mm</translation>
    </message>
    <message>
        <source>Inch</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Fuß</translation>
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
        <translation>US-Bushel</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>UK-Bushel</translation>
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
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Komma</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Sonnenuntergang</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Dämmerung</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Nicht gestellt</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Bediener</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Fläche fertig</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Fläche übrig</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Durchfluss</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Mengen</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Farbschemata</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokolle</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, bei Tag</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, bei Nacht</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>worauf sich die Mengen der Spritze beziehen</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>Flüssigkeitsmengen je 100 m oder 100 yd, solange sie sich auf die Fahrstrecke beziehen</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>seit wann die Uhr ihre Zeit von dort hat</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>Ordner des internen Laufwerks; sonst im Datenordner</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>Einhängepunkt des Sticks; sonst im Datenordner</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>der aktive Auftrag</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>die aktive Feldgrenze</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>die aktive gerade Leitlinie</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>die aktive Kreisspur</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>die aktive Leitkurve</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>die aktive Shape-Datei der optimalen Linien</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>die aktive Shape-Datei der Projektlinien</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>die aktive Shape-Datei der Zonen</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>das aktive Lenkprofil</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>das aktive Gerät</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>das aktive Fahrzeug</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>die aktive Spritze</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>die aktive Gestängeführung</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>der aktive Kunde</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>der aktive Betrieb</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>das aktive Feld</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>Ortszeit gegen UTC, ganze Stunden</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>Ortszeit gegen UTC, Minuten nach den Stunden, mit deren Vorzeichen</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>die Uhr der Anzeige gegen UTC</translation>
    </message>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>der Bediener hat den Abstand zu UTC gewählt; die GPS-Zeit lässt ihn, wie er ist</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>metrische Einheiten; sonst US- oder englische</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>US-Maße, wenn die Einheiten nicht metrisch sind; sonst englische</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>Positionen in Grad, Minuten und Sekunden; sonst in Dezimalgrad</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>Einheit der Drücke</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>Einheit der Flächen und der Mengen je Fläche</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>Einheit kurzer Strecken: Breiten, Abstände</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>Einheit der Granulatvolumen</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>Einheit der Granulatdichten</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>Einheit von Volumen, Durchfluss und Menge bei Flüssigkeiten</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>Sprache der Anzeige; eine Änderung braucht einen Neustart</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>Dezimalpunkt oder Komma; eine Änderung braucht einen Neustart</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>Uhr mit 24 Stunden; sonst 12 Stunden mit am und pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>Datum mit dem Monat vor dem Tag</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>Farben für den Tag; sonst für die Nacht</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>die Karte dreht sich mit dem Fahrzeug; sonst ist Norden oben</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>Helligkeit des Lichtbalkens bei Nacht</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>Helligkeit des Bildschirms bei Nacht</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>Helligkeit der Tastenbeleuchtung bei Nacht</translation>
    </message>
    <message>
        <source>number of the background picture by day</source>
        <translation>Nummer des Hintergrundbilds bei Tag</translation>
    </message>
    <message>
        <source>number of the background picture by night</source>
        <translation>Nummer des Hintergrundbilds bei Nacht</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: Geräte liegen im Ordner ihres Fahrzeugs; andere Zahlen: in einem eigenen Ordner</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>Nummer der nächsten Datei des NMEA-Protokolls</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>Nummer der nächsten Datei des Bedienprotokolls</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>wann die Farben zwischen Tag und Nacht wechseln: nur von Hand, bei Sonnenauf- und -untergang, oder wenn die Sonne 6 Grad unter dem Horizont steht</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>wonach die Uhr gestellt ist</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>die neueste Zeit eines Empfängers, vom letzten Tag mit einem Empfänger</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>die Kennung des Terminals, die in seinen Profilen steht</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>wann die Sonne die Farben zuletzt umgeschaltet hat</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>woher die Sätze des Empfängers kommen</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>die Werte neben der Karte, in dieser Reihenfolge</translation>
    </message>
    <message>
        <source>colour of texts, by day</source>
        <translation>Farbe der Texte bei Tag</translation>
    </message>
    <message>
        <source>colour of texts, by night</source>
        <translation>Farbe der Texte bei Nacht</translation>
    </message>
    <message>
        <source>colour of buttons, by day</source>
        <translation>Farbe der Tasten bei Tag</translation>
    </message>
    <message>
        <source>colour of buttons, by night</source>
        <translation>Farbe der Tasten bei Nacht</translation>
    </message>
    <message>
        <source>colour of texts on buttons, by day</source>
        <translation>Farbe der Texte auf Tasten bei Tag</translation>
    </message>
    <message>
        <source>colour of texts on buttons, by night</source>
        <translation>Farbe der Texte auf Tasten bei Nacht</translation>
    </message>
    <message>
        <source>colour of the background, by day</source>
        <translation>Farbe des Hintergrunds bei Tag</translation>
    </message>
    <message>
        <source>colour of the background, by night</source>
        <translation>Farbe des Hintergrunds bei Nacht</translation>
    </message>
    <message>
        <source>colour of titles, by day</source>
        <translation>Farbe der Titel bei Tag</translation>
    </message>
    <message>
        <source>colour of titles, by night</source>
        <translation>Farbe der Titel bei Nacht</translation>
    </message>
    <message>
        <source>colour of the outer boundary of the field, by day</source>
        <translation>Farbe der Außengrenze des Feldes bei Tag</translation>
    </message>
    <message>
        <source>colour of the outer boundary of the field, by night</source>
        <translation>Farbe der Außengrenze des Feldes bei Nacht</translation>
    </message>
    <message>
        <source>colour of boundaries within the field, by day</source>
        <translation>Farbe der Grenzen im Feld bei Tag</translation>
    </message>
    <message>
        <source>colour of boundaries within the field, by night</source>
        <translation>Farbe der Grenzen im Feld bei Nacht</translation>
    </message>
    <message>
        <source>colour of boundaries that are not active, by day</source>
        <translation>Farbe der Grenzen, die nicht aktiv sind bei Tag</translation>
    </message>
    <message>
        <source>colour of boundaries that are not active, by night</source>
        <translation>Farbe der Grenzen, die nicht aktiv sind bei Nacht</translation>
    </message>
    <message>
        <source>colour of covered ground, by day</source>
        <translation>Farbe des bearbeiteten Bodens bei Tag</translation>
    </message>
    <message>
        <source>colour of covered ground, by night</source>
        <translation>Farbe des bearbeiteten Bodens bei Nacht</translation>
    </message>
    <message>
        <source>colour of the vehicle, by day</source>
        <translation>Farbe des Fahrzeugs bei Tag</translation>
    </message>
    <message>
        <source>colour of the vehicle, by night</source>
        <translation>Farbe des Fahrzeugs bei Nacht</translation>
    </message>
    <message>
        <source>colour of the guidance line, by day</source>
        <translation>Farbe der Leitlinie bei Tag</translation>
    </message>
    <message>
        <source>colour of the guidance line, by night</source>
        <translation>Farbe der Leitlinie bei Nacht</translation>
    </message>
    <message>
        <source>colour of the map&apos;s ground, by day</source>
        <translation>Farbe des Kartengrunds bei Tag</translation>
    </message>
    <message>
        <source>colour of the map&apos;s ground, by night</source>
        <translation>Farbe des Kartengrunds bei Nacht</translation>
    </message>
    <message>
        <source>colour of zones to keep out of, by day</source>
        <translation>Farbe der Zonen, die frei bleiben bei Tag</translation>
    </message>
    <message>
        <source>colour of zones to keep out of, by night</source>
        <translation>Farbe der Zonen, die frei bleiben bei Nacht</translation>
    </message>
    <message>
        <source>colour of the map&apos;s grid, by day</source>
        <translation>Farbe des Kartengitters bei Tag</translation>
    </message>
    <message>
        <source>colour of the map&apos;s grid, by night</source>
        <translation>Farbe des Kartengitters bei Nacht</translation>
    </message>
    <message>
        <source>colour of the cross-hairs, by day</source>
        <translation>Farbe des Fadenkreuzes bei Tag</translation>
    </message>
    <message>
        <source>colour of the cross-hairs, by night</source>
        <translation>Farbe des Fadenkreuzes bei Nacht</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Kleine Strecke</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Fahrstrecke</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Sollmenge</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Menge und Abweichung</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Kleine Menge</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Durchfluss</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Kleiner Durchfluss</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Kleines Volumen</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Granulatvolumen</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Gewicht je Fläche</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Gewicht je Fläche und Abweichung</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Austrag</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Stickstoff</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Stickstoff je Fläche</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Körner je Fläche</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Granulatdichte</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Volumen je Umdrehung</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Gewicht je Umdrehung</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Durchflussmesser</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Radsensor</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Geschwindigkeitssensor</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Die Einstellung konnte noch nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Es gibt keinen Wert.</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>Die neue Sprache gilt nach einem Neustart.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>Das neue Dezimalzeichen gilt nach einem Neustart.</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Verbindet</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Empfängt</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Verloren</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Keine Position</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK Float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Geschätzt</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simuliert</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>Der Empfänger sendet nichts.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for: %1.</source>
        <translation>Der Empfänger ist verloren und wird gesucht: %1.</translation>
    </message>
    <message>
        <source>The receiver cannot be read: %1.</source>
        <translation>Der Empfänger kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>Das simulierte Feld ist fertig.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>Die Aufzeichnung des Empfängers ist zu Ende.</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>Die Uhr des Geräts; sie wurde nicht gestellt.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>Die Uhr wurde von Hand gestellt.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>Der Empfänger stellt die Uhr.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Dieses Datum oder diese Zeit gibt es nicht.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>Das Datum liegt mehr als 68 Jahre von der Uhr des Geräts entfernt.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Die Uhrzeit konnte nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 frei von %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Nicht bekannt</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Kein Stick</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>Die Aufzeichnung ist aus, weil zu wenig Platz ist.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet: %1.</source>
        <translation>Änderungen der Einstellungen sind noch nicht gespeichert: %1.</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full: %1 are free.</source>
        <translation>Das Laufwerk des Terminals ist fast voll: %1 sind frei.</translation>
    </message>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Die Protokolle verlieren Zeilen: ihr Laufwerk ist voll oder kann nicht beschrieben werden.</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Es steckt kein Stick.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>Der Stick wurde entfernt, bevor alles darauf war.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Der Stick konnte nicht zu Ende beschrieben werden.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Die Protokolle sind auf dem Stick (Dateien: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used: %1.</source>
        <translation>Das Profil kann nicht verwendet werden: %1.</translation>
    </message>
    <message>
        <source>Nothing is imported: %1.</source>
        <translation>Nichts wurde übernommen: %1.</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Dieses Terminal</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Ein anderes Terminal</translation>
    </message>
    <message>
        <source>The profile is not on the stick: %1.</source>
        <translation>Das Profil ist nicht auf dem Stick: %1.</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>Das Profil ist auf dem Stick: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick: %1.</source>
        <translation>Die Datei für den Kundendienst ist nicht auf dem Stick: %1.</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>Die Datei für den Kundendienst ist auf dem Stick: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Das Profil ist übernommen (geänderte Einstellungen: %1).</translation>
    </message>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>Nichts wurde übernommen: einige Einstellungen wurden hier und im Profil geändert.</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Es kann nicht verwendet werden.</translation>
    </message>
</context>
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Fenster, Dateien und Verbindungen</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>Die Datei der Einstellungen</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Profile der Einstellungen</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Dateien für den Kundendienst</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Sonnenauf- und -untergang</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Grenzen und Zonen</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>Die Software dieses Terminals</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Einstellungen, Einheiten und Protokolle</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Die Auswahl konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>A job holds no items.</source>
        <translation>Ein Auftrag enthält nichts weiter.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Diesen Namen gibt es schon.</translation>
    </message>
    <message>
        <source>1 file, %1</source>
        <translation>1 Datei, %1</translation>
    </message>
    <message>
        <source>%1 files, %2</source>
        <translation>%1 Dateien, %2</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>Der Name ist leer.</translation>
    </message>
    <message>
        <source>The name %1.</source>
        <translation>Der Name geht nicht: %1.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Die Auswahl konnte nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Kabinenanzeige</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>Neu starten</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Arbeit</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Empfang</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Optionen</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>Der Bildschirm ist gesperrt. Zum Entsperren die Taste halten.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Entsperren</translation>
    </message>
</context>
<context>
    <name>StateBand</name>
    <message>
        <source>No job</source>
        <translation>Kein Auftrag</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Empfänger: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Der Stick steckt</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Bildschirm sperren</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Farben der Nacht</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Farben des Tages</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>Soll %1</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>Arbeitet</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Arbeitet nicht</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Arbeitet. Gerät ausschalten</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Arbeitet nicht. Gerät einschalten</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 nach links</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 nach rechts</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Fahrtrichtung oben. Norden nach oben drehen</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Norden oben. Fahrtrichtung nach oben drehen</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Fahrzeug in die Mitte</translation>
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
        <translation>A, das erste Ende der Linie, hier setzen</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>B, das andere Ende der Linie, hier setzen</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Hier eine Fahne setzen</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Warten auf eine Position</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 bis %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Mindestens %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Höchstens %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Das ist noch keine Zahl.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Zu groß.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Zu klein.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>jetzt %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Setzen</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Dezimalzeichen</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Plus oder minus</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Letztes Zeichen löschen</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Rest</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Leistung</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Fluss</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Weg</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
</context>
</TS>
