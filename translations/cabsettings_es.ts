<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Ventanas, archivos y conexiones</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>El archivo de los ajustes</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Perfiles de ajustes</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Archivos para asistencia</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Salida y puesta del sol</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Límites y zonas</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>El software de este terminal</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Ajustes, unidades y registros</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>El reloj del equipo; no se ha puesto en hora.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>El reloj se puso en hora a mano.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>El receptor pone en hora el reloj.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Esta fecha u hora no existe.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>La fecha está a más de 68 años del reloj del equipo.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>No se pudo guardar el reloj.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Año</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mes</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minuto</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: más</translation>
    </message>
    <message>
        <source>%1: less</source>
        <translation>%1: menos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>%1: less</source>
        <translation>%1: menos</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: más</translation>
    </message>
</context>
<context>
    <name>ColorPage</name>
    <message>
        <source>Former</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Former colour</source>
        <translation>Color anterior</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>Valor de fábrica</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Cifras del color</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Tono</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturación</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Claridad</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noche</translation>
    </message>
</context>
<context>
    <name>Contrasts</name>
    <message>
        <source>on %1: %2</source>
        <translation>sobre %1: %2</translation>
    </message>
    <message>
        <source>under %1: %2</source>
        <translation>bajo %1: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, demasiado bajo: al menos %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Cambiado en ambos lados</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Aquí</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>Restart</source>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>The fonts of the display</source>
        <translation>Las fuentes del terminal</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>El teclado en pantalla</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Trabajo</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Parcelas</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Receptor</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
</context>
<context>
    <name>Drives</name>
    <message>
        <source>%1 free of %2</source>
        <translation>%1 libres de %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Desconocido</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Sin USB</translation>
    </message>
</context>
<context>
    <name>FieldsPage</name>
    <message>
        <source>Clients</source>
        <translation>Clientes</translation>
    </message>
    <message>
        <source>New client</source>
        <translation>Nuevo cliente</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Aún no hay clientes.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Fincas</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Nueva finca</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Aún no hay fincas.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Parcelas</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Nueva parcela</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Aún no hay parcelas.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Tareas</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Nueva tarea</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Aún no hay tareas.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>¿Eliminar %1 con todo su contenido?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Renombrar o eliminar: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Renombrar: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Eliminar todo</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Detalles para asistencia: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Sugerencia: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Este nombre no es posible.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>El nombre está vacío.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Este nombre designa otra carpeta.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>El nombre no debe contener %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>El nombre contiene un carácter invisible.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>El nombre contiene un carácter incompleto.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>El nombre no debe terminar en punto ni en espacio.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>El nombre no debe empezar por un espacio.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Una memoria USB no admite un archivo con este nombre.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>El nombre es demasiado largo.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 ya existe.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 está en uso y contiene %n archivo.</numerusform>
            <numerusform>%2 está en uso y contiene %n archivos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 contiene %n archivo.</numerusform>
            <numerusform>%2 contiene %n archivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 está en uso.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 ya no existe.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Una memoria USB no distingue %2 de %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Otro programa está trabajando con las parcelas. Probar más tarde.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>No se pudo guardar la selección.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 no es un archivo ni una carpeta.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>El archivo fue modificado o está dañado.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>No se puede leer %1. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>El archivo es de otro tipo.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Falta el final del archivo.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>El archivo está dañado.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>El archivo está incompleto.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>El archivo es de otra versión del software.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>El archivo tiene un valor imposible: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>Un ajuste aparece dos veces en el archivo: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Esta dirección no es posible: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>El equipo no está conectado.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>No está permitido, o lo usa otro programa.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Lo usa otro programa.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>No se puede leer.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Se ha desconectado.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>No es un equipo serie, o no admite esta velocidad.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>El puerto serie tiene un fallo (número %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>El archivo %1 está dañado o es de otro tipo.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>El archivo %1 es de otra versión del software.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>El archivo %1 está dañado.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>El archivo %1 no tiene coordenadas WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>El archivo %1 está incompleto. Falta %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>El archivo %1 no tiene áreas.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Otro programa usa %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A y B están demasiado cerca o demasiado lejos entre sí.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Otro programa lo ha bloqueado.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>El archivo ya no existe.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 ya no existe.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>No se puede escribir %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>No se puede escribir %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>El archivo de los ajustes tiene un fallo (número %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>No se puede abrir %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>No se puede crear %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>No se puede copiar %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>No se puede renombrar %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>No se puede eliminar %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>El disco está lleno.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>El disco tiene un fallo.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>El disco es de solo lectura.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>No está permitido.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>No se puede abrir.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>El archivo está dañado.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>La ruta no existe.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>El nombre ya existe.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>Es una carpeta.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>No es una carpeta.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>La carpeta no está vacía.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>El archivo es demasiado grande.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Hay demasiados archivos abiertos.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>No es posible en ese lugar.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>El equipo rechaza la conexión.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>El equipo ha cerrado la conexión.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>No hay ningún equipo con esta dirección.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>No se llega a la red.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>El equipo no responde.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>Es un enlace a otro lugar.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Hay demasiados enlaces que llevan a él.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>ItemPage</name>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
</context>
<context>
    <name>Keypad</name>
    <message>
        <source>%1 to %2 %3</source>
        <translation>%1 a %2 %3</translation>
    </message>
    <message>
        <source>At least %1 %2</source>
        <translation>Como mínimo %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>Como máximo %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Todavía no es un número.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Demasiado grande.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Demasiado pequeño.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>ahora %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Separador decimal</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Más o menos</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Borrar el último carácter</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
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
        <translation>Fijar aquí A, el primer extremo de la línea</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Fijar aquí B, el otro extremo de la línea</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Poner aquí una bandera</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
</context>
<context>
    <name>LinePanel</name>
    <message>
        <source>%1 to the left</source>
        <translation>%1 a la izquierda</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 a la derecha</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>La pantalla está bloqueada. Mantener pulsado el botón para desbloquearla.</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>Desbloquear</translation>
    </message>
</context>
<context>
    <name>LogsPage</name>
    <message>
        <source>Logs</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Receptor</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>No line yet.</source>
        <translation>Aún no hay líneas.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Ancho del apero</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Determina las líneas de guiado contiguas y el área trabajada</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Apero detrás de la antena</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>A qué distancia detrás de la posición del vehículo se cubre el suelo</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Terminal de cabina</translation>
    </message>
</context>
<context>
    <name>MapButtons</name>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Rumbo arriba. Poner el norte arriba</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Norte arriba. Poner el rumbo arriba</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Centrar el vehículo</translation>
    </message>
</context>
<context>
    <name>NameEntry</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Filas de arriba</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Filas de abajo</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: volver al valor de fábrica</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
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
        <translation>una ruta absoluta que termina en &quot;/&quot; y no es &quot;/&quot;</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>una ruta absoluta</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>un UUID en minúsculas, como 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N o una ruta absoluta</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true o false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>una hora en UTC, como 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>un color: #rrggbb, #aarrggbb o un nombre como navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>No es un número entero.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Por debajo del valor mínimo.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Por encima del valor máximo.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>No puede ser nombre de archivo. Sugerencia: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>No aceptado. Se espera: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>un nombre sin %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>un número entero</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Como mínimo %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>el operador ha elegido la diferencia con UTC; la hora GPS la mantiene en lugar de calcularla</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>unidades métricas; si no, unidades US o imperiales</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>medidas US si las unidades no son métricas; si no, medidas imperiales</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>posiciones en grados, minutos y segundos; si no, en grados decimales</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>reloj de 24 horas; si no, de 12 horas con am y pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>fechas con el mes antes del día</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>colores de día; si no, de noche</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>el mapa gira con el vehículo; si no, el norte está arriba</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>unidad de las presiones</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>unidad de las áreas y de las dosis por área</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>unidad de las distancias cortas: anchos, desplazamientos</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>unidad de los volúmenes de granulado</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>unidad de las densidades de granulado</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>unidad de volúmenes, caudales y dosis de líquido</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>idioma de los textos del terminal; un cambio exige un reinicio</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>punto o coma decimal; un cambio exige un reinicio</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>cuándo cambian los colores entre día y noche: solo a mano, a la salida y a la puesta del sol, o con el sol 6 grados bajo el horizonte</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>qué puso en hora el reloj del terminal</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>hora local menos UTC, horas enteras</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>hora local menos UTC, minutos además de las horas, con el signo de las horas</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>brillo de la barra de luces de noche</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>brillo de la pantalla de noche</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>brillo de las luces de los botones de noche</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: los aperos están en la carpeta de su vehículo; otros números: en su propia carpeta</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>número del próximo archivo del registro NMEA</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>número del próximo archivo del registro del operador</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>el reloj del terminal menos UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>carpeta del disco interno; por defecto, en la carpeta de datos</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>punto de montaje del disco extraíble; por defecto, en la carpeta de datos</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>el identificador del terminal, que llevan sus perfiles</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>de dónde vienen las tramas del receptor</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>los valores junto al mapa, en este orden</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>la hora más reciente de un receptor, del último día en que hubo uno</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>cuándo cambió el sol los colores por última vez</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>la tarea activa</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>el límite activo</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>la línea de guiado recta activa</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>el pivote activo</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>la curva de guiado activa</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>el archivo shape activo de las líneas óptimas</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>el archivo shape activo de las líneas de proyecto</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>el archivo shape activo de las zonas</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>el perfil de dirección activo</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>el apero activo</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>el vehículo activo</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>el pulverizador activo</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>el nivelador de barra activo</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>el cliente activo</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>la finca activa</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>la parcela activa</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Sistema de medidas</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Galones y bushels</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Presión</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Distancias cortas</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Líquido</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Volumen de granulado</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Densidad de granulado</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Posiciones</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Dosis por recorrido</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Base de las dosis</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Separador decimal</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Fechas</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Huso horario manual</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Huso horario, horas</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Huso horario, minutos</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Reloj menos UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Origen de la hora</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Origen de la hora desde</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Última hora del receptor</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Día y noche</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Orientación del mapa</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Recuadros</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Barra de luces de noche</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Pantalla de noche</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Luz de botones de noche</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Cambio según el sol</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Finca</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Parcela</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Tarea</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Vehículo</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Apero</translation>
    </message>
    <message>
        <source>Sprayer</source>
        <translation>Pulverizador</translation>
    </message>
    <message>
        <source>Boom leveller</source>
        <translation>Nivelador de barra</translation>
    </message>
    <message>
        <source>Steering profile</source>
        <translation>Perfil de dirección</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Límite</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>Línea A-B</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivote</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Líneas óptimas</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Líneas de proyecto</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zonas</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Dirección del receptor</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Disco interno</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Memoria USB</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Carpeta del apero</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Próximo registro NMEA</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Próx. registro del operador</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Color de los textos</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Color de los títulos</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fondo</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Color del fondo</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Botón</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Color de los botones</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Texto de botón</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Color de los textos de los botones</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Color del fondo del mapa</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Color de la cuadrícula del mapa</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Cobertura</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Color del suelo cubierto</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Vehículo en el mapa</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Color del vehículo</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Línea de guiado</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Color de la línea de guiado</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Retícula</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Color de la retícula</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Límite exterior</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Color del límite exterior de la parcela</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Límite interior</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Color de los límites dentro de la parcela</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Otros límites</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Color de los límites no activos</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Zona de exclusión</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Color de las zonas que se deben evitar</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Imagen de fondo</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Número de la imagen de fondo</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>a qué se refieren las dosis del pulverizador</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>dosis de líquido por 100 m o 100 yd de recorrido, mientras el recorrido sea su base</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>desde cuándo el reloj toma la hora de ese origen</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Métrico</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>US o imperial</translation>
    </message>
    <message>
        <source>US</source>
        <translation>US</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Imperial</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Grados, min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Grados</translation>
    </message>
    <message>
        <source>24 hours</source>
        <translation>24 horas</translation>
    </message>
    <message>
        <source>am, pm</source>
        <translation>am, pm</translation>
    </message>
    <message>
        <source>Month first</source>
        <translation>Primero el mes</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Primero el día</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Día</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noche</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Rumbo arriba</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Norte arriba</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Encendido</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Apagado</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Recorrido</translation>
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
        <translation>Hectárea</translation>
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
        <translation>Pulgada</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Pie</translation>
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
        <translation>Bushel US</translation>
    </message>
    <message>
        <source>UK bushel</source>
        <translation>Bushel UK</translation>
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
        <translation>kg/bu US</translation>
    </message>
    <message>
        <source>kg/UK bu</source>
        <translation>kg/bu UK</translation>
    </message>
    <message>
        <source>t</source>
        <translation>t</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punto</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Coma</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Puesta de sol</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Crepúsculo</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Sin ajustar</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operario</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Receptor</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dosis</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Área trabajada</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Área restante</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Rendimiento horario</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Caudal</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Rates</source>
        <translation>Dosis</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Región</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Reloj</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Colores de los temas</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Almacenamiento</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Terminal</source>
        <translation>Terminal</translation>
    </message>
    <message>
        <source>%1, by day</source>
        <translation>%1, de día</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, de noche</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Los registros pierden líneas: su disco está lleno o no se puede escribir.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>La grabación está parada por falta de espacio.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>Los cambios de ajustes todavía no están guardados. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>El disco del terminal está casi lleno. Libres: %1</translation>
    </message>
</context>
<context>
    <name>ProfilePage</name>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>The display has these settings already.</source>
        <translation>El terminal ya tiene estos ajustes.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Cambiado aquí y en el perfil</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Qué valor deben tomar los ajustes siguientes</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>Aquí</translation>
    </message>
    <message>
        <source>Theirs</source>
        <translation>Perfil</translation>
    </message>
</context>
<context>
    <name>ProfilesPage</name>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>No hay ningún perfil en la memoria USB.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Ninguna memoria USB conectada.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Nombre del perfil</translation>
    </message>
</context>
<context>
    <name>Quantities</name>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Rendimiento horario</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Distancia pequeña</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Distancia recorrida</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitud</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Presión</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Dosis</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Dosis objetivo</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Dosis y desviación</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Dosis pequeña</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Caudal</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Caudal pequeño</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Volumen pequeño</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Volumen de granulado</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
    </message>
    <message>
        <source>Weight per area</source>
        <translation>Peso por área</translation>
    </message>
    <message>
        <source>Weight per area and error</source>
        <translation>Peso por área y desviación</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Caudal másico</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Nitrógeno</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Nitrógeno por área</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Semillas por área</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densidad</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Densidad de granulado</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Volumen por vuelta</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Peso por vuelta</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Caudalímetro</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Sensor de rueda</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Sensor de velocidad</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitud</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentaje</translation>
    </message>
</context>
<context>
    <name>Question</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>RateTile</name>
    <message>
        <source>set %1</source>
        <comment>the rate that is set</comment>
        <translation>objetivo %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Apagado</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Recibiendo</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Sin datos</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdido</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <source>No fix</source>
        <translation>Sin posición</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK flotante</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Estimación</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulación</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>El receptor no envía nada.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Receptor perdido; se está buscando. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>No se puede leer el receptor. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>La parcela simulada está terminada.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>La grabación del receptor ha terminado.</translation>
    </message>
</context>
<context>
    <name>ReceiverPage</name>
    <message>
        <source>Receiver</source>
        <translation>Receptor</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Simulator</source>
        <translation>Simulador</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Serie</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Tipo de posición</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Edad</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satélites</translation>
    </message>
    <message>
        <source>HDOP</source>
        <translation>HDOP</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Hora (UTC)</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Líneas</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Tramas</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Checksums erróneos</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Líneas dañadas</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Dirección del receptor</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Huso horario</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Fecha y hora</translation>
    </message>
    <message>
        <source>Set by hand</source>
        <translation>Ajuste manual</translation>
    </message>
</context>
<context>
    <name>SearchPage</name>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Words of a setting</source>
        <translation>Palabras de un ajuste</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Ningún ajuste tiene estas palabras.</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Units</source>
        <translation>Unidades</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Región</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Pantalla</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Máquina</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Memoria</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Recuadros</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Todos los ajustes</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Buscar</translation>
    </message>
</context>
<context>
    <name>Sizes</name>
    <message numerus="yes">
        <source>%n byte(s)</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
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
        <translation>Sin tarea</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Receptor: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Memoria USB conectada</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Bloquear la pantalla</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Colores de noche</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Colores de día</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Disco interno</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Memoria USB</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Ninguna memoria USB conectada.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memoria RAM</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Escribe todos los registros en la memoria USB</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Export the logs</source>
        <translation>Exportar registros</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfiles</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Lleva los ajustes a otro terminal o los recupera de la memoria USB</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Abrir perfiles</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Asistencia</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Escribe registros, ajustes y versiones en un archivo; sin los nombres de clientes, fincas y parcelas</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Escribir</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Escribir el archivo para asistencia sin nombres</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Asistencia, con nombres</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>El mismo archivo, con todos los nombres y lugares</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Escribir el archivo para asistencia con nombres</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Una tarea no contiene nada más.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Este nombre ya existe.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n archivo, %1</numerusform>
            <numerusform>%n archivos, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>El ajuste todavía no se pudo escribir en el disco.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>No hay ningún valor que ajustar.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>ene</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>abr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>may</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>ago</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sept</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>oct</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dic</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>El nuevo idioma se muestra tras un reinicio.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>El nuevo separador decimal se muestra tras un reinicio.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>No se pudo guardar la selección.</translation>
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
        <translation>LM_</translation>
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
        <translation>C_</translation>
    </message>
    <message>
        <source>O_</source>
        <translation>O_</translation>
    </message>
    <message>
        <source>No Vehicle</source>
        <translation>Sin vehículo</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Sin perfil</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Sin apero</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Arrastrado_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>El nombre está vacío.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>ene</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>feb</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>abr</translation>
    </message>
    <message>
        <source>May</source>
        <translation>may</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>ago</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>sept</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>oct</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dic</translation>
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
        <translation>millas</translation>
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
        <translation>bu US</translation>
    </message>
    <message>
        <source>UK bu</source>
        <translation>bu UK</translation>
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
        <translation>L/rev</translation>
    </message>
    <message>
        <source>gal/rev</source>
        <translation>gal/rev</translation>
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
        <translation>m/imp</translation>
    </message>
    <message>
        <source>ft/pulse</source>
        <translation>ft/imp</translation>
    </message>
    <message>
        <source>pulses/L</source>
        <translation>imp/L</translation>
    </message>
    <message>
        <source>pulses/gal</source>
        <translation>imp/gal</translation>
    </message>
    <message>
        <source>pulses/mL</source>
        <translation>imp/mL</translation>
    </message>
    <message>
        <source>pulses/fl.oz</source>
        <translation>imp/fl.oz</translation>
    </message>
    <message>
        <source>pulses/m³</source>
        <translation>imp/m³</translation>
    </message>
    <message>
        <source>pulses/ft³</source>
        <translation>imp/ft³</translation>
    </message>
    <message>
        <source>pulses/t</source>
        <translation>imp/t</translation>
    </message>
    <message>
        <source>pulses/lb</source>
        <translation>imp/lb</translation>
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
        <translation>kg/rev</translation>
    </message>
    <message>
        <source>lb/rev</source>
        <translation>lb/rev</translation>
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
        <translation>kg/bu US</translation>
    </message>
    <message>
        <source>kg/UK bu</source>
        <translation>kg/bu UK</translation>
    </message>
    <message>
        <source>lb/US bu</source>
        <translation>lb/bu US</translation>
    </message>
    <message>
        <source>lb/UK bu</source>
        <translation>lb/bu UK</translation>
    </message>
    <message>
        <source>pulses/kgN</source>
        <translation>imp/kgN</translation>
    </message>
    <message>
        <source>pulses/lbN</source>
        <translation>imp/lbN</translation>
    </message>
    <message>
        <source>KS/ha</source>
        <translation>mil sem/ha</translation>
    </message>
    <message>
        <source>KS/ac</source>
        <translation>mil sem/ac</translation>
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
        <translation>rpm</translation>
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
        <translation>Crítico</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Trivial</source>
        <translation>Leve</translation>
    </message>
</context>
<context>
    <name>TWork</name>
    <message>
        <source>An implement cannot have this width.</source>
        <translation>Un apero no puede tener este ancho.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>No se puede usar un archivo de esta tarea. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Había datos de cobertura incompletos y se omitieron: franjas %1, bytes %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>El archivo de las banderas está dañado; las banderas nuevas no se guardan.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>No se pudo guardar un archivo. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>No se puede usar el archivo del apero. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>No hay línea.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>La línea no tiene nombre.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>No se puede usar la línea de guiado. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Ninguna tarea elegida</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Ninguna tarea elegida: lo cubierto no se guarda.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>No se puede usar la cobertura de esta tarea: lo cubierto no se guarda.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>No se puede guardar la cobertura y se pierden franjas: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>La cobertura queda en memoria hasta que se pueda guardar. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>La tarea todavía se está leyendo.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Recuadros</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Dosis</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidad</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>area that is left to work</comment>
        <translation>Restante</translation>
    </message>
    <message>
        <source>Work</source>
        <comment>area per hour</comment>
        <translation>Rend.</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Caudal</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Pres.</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Recorrido</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
</context>
<context>
    <name>TilesPage</name>
    <message>
        <source>Back to the first choice</source>
        <translation>Volver a la elección inicial</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: subir</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Visible</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Oculto</translation>
    </message>
</context>
<context>
    <name>Transfer</name>
    <message>
        <source>Nothing is imported: some settings were changed here and in the profile.</source>
        <translation>No se importa nada: algunos ajustes se cambiaron aquí y en el perfil.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Ninguna memoria USB conectada.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>La memoria USB se retiró antes de terminar la escritura.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>No se pudo terminar la escritura en la memoria USB.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>No se puede crear la carpeta %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>No se puede escribir el archivo %1.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Los registros están en la memoria USB (archivos: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>No se puede usar el perfil. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>No se importa nada. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Este terminal</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Otro terminal</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>El perfil no está en la memoria USB. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>El perfil está en la memoria USB: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>El archivo para asistencia no está en la memoria USB. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>El archivo para asistencia está en la memoria USB: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>Perfil importado (ajustes cambiados: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>No se puede usar.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Leyendo</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Escribiendo</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Dejar la memoria USB puesta hasta que termine.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Esperando una posición</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
</context>
<context>
    <name>WorkingButton</name>
    <message>
        <source>Working</source>
        <translation>Trabajando</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Sin trabajar</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Trabajando. Desconectar el apero</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Sin trabajar. Conectar el apero</translation>
    </message>
</context>
</TS>
