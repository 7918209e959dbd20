<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>Windows, files and connections</source>
        <translation>Janelas, arquivos e conexões</translation>
    </message>
    <message>
        <source>The file of the settings</source>
        <translation>O arquivo dos ajustes</translation>
    </message>
    <message>
        <source>Profiles of settings</source>
        <translation>Perfis de ajustes</translation>
    </message>
    <message>
        <source>Files for support</source>
        <translation>Arquivos para o suporte</translation>
    </message>
    <message>
        <source>Sunrise and sunset</source>
        <translation>Nascer e pôr do sol</translation>
    </message>
    <message>
        <source>Boundaries and zones</source>
        <translation>Limites e zonas</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>The software of this display</source>
        <translation>O software deste terminal</translation>
    </message>
    <message>
        <source>Settings, units and logs</source>
        <translation>Ajustes, unidades e registros</translation>
    </message>
</context>
<context>
    <name>Clock</name>
    <message>
        <source>The clock of the machine; nothing has set it.</source>
        <translation>O relógio do aparelho; não foi acertado.</translation>
    </message>
    <message>
        <source>The clock was set by hand.</source>
        <translation>O relógio foi acertado manualmente.</translation>
    </message>
    <message>
        <source>The receiver sets the clock.</source>
        <translation>O receptor acerta o relógio.</translation>
    </message>
    <message>
        <source>There is no such date or time.</source>
        <translation>Esta data ou hora não existe.</translation>
    </message>
    <message>
        <source>The date is more than 68 years from the clock of the machine.</source>
        <translation>A data está a mais de 68 anos do relógio do aparelho.</translation>
    </message>
    <message>
        <source>The clock could not be stored.</source>
        <translation>Não foi possível salvar o relógio.</translation>
    </message>
</context>
<context>
    <name>ClockEntry</name>
    <message>
        <source>Year</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mês</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dia</translation>
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
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>%1: more</source>
        <translation>%1: mais</translation>
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
        <translation>Confirmar</translation>
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
        <translation>%1: mais</translation>
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
        <translation>Cor anterior</translation>
    </message>
    <message>
        <source>First value</source>
        <translation>De fábrica</translation>
    </message>
    <message>
        <source>Digits of the colour</source>
        <translation>Dígitos da cor</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Matiz</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturação</translation>
    </message>
    <message>
        <source>Lightness</source>
        <translation>Claridade</translation>
    </message>
</context>
<context>
    <name>ColorsPage</name>
    <message>
        <source>Day</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noite</translation>
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
        <translation>sob %1: %2</translation>
    </message>
    <message>
        <source>%1, too low: at least %2</source>
        <translation>%1, baixo demais: no mínimo %2</translation>
    </message>
</context>
<context>
    <name>Difference</name>
    <message>
        <source>Changed on both sides</source>
        <translation>Alterado nos dois lados</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Aqui</translation>
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
        <translation>As fontes do terminal</translation>
    </message>
    <message>
        <source>The keyboard on the screen</source>
        <translation>O teclado na tela</translation>
    </message>
</context>
<context>
    <name>DoorBand</name>
    <message>
        <source>Work</source>
        <translation>Operação</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Talhões</translation>
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
        <translation>%1 livres de %2</translation>
    </message>
    <message>
        <source>Not known</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>No stick</source>
        <translation>Sem pen drive</translation>
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
        <translation>Novo cliente</translation>
    </message>
    <message>
        <source>No client yet.</source>
        <translation>Nenhum cliente ainda.</translation>
    </message>
    <message>
        <source>Farms</source>
        <translation>Fazendas</translation>
    </message>
    <message>
        <source>New farm</source>
        <translation>Nova fazenda</translation>
    </message>
    <message>
        <source>No farm yet.</source>
        <translation>Nenhuma fazenda ainda.</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Talhões</translation>
    </message>
    <message>
        <source>New field</source>
        <translation>Novo talhão</translation>
    </message>
    <message>
        <source>No field yet.</source>
        <translation>Nenhum talhão ainda.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Trabalhos</translation>
    </message>
    <message>
        <source>New job</source>
        <translation>Novo trabalho</translation>
    </message>
    <message>
        <source>No job yet.</source>
        <translation>Nenhum trabalho ainda.</translation>
    </message>
    <message>
        <source>Remove %1 with everything in it?</source>
        <translation>Remover %1 com todo o conteúdo?</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Rename or remove %1</source>
        <translation>Renomear ou remover: %1</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>Renomear: %1</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <translation>Remover tudo</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Details for the support: %1</source>
        <translation>Detalhes para o suporte: %1</translation>
    </message>
    <message>
        <source>%3 Try: %4</source>
        <translation>%3 Sugestão: %4</translation>
    </message>
    <message>
        <source>This name is not possible.</source>
        <translation>Este nome não é possível.</translation>
    </message>
    <message>
        <source>The name is empty.</source>
        <translation>O nome está vazio.</translation>
    </message>
    <message>
        <source>This name stands for another folder.</source>
        <translation>Este nome indica outra pasta.</translation>
    </message>
    <message>
        <source>The name must not contain %1.</source>
        <translation>O nome não pode conter %1.</translation>
    </message>
    <message>
        <source>The name contains a sign that cannot be seen.</source>
        <translation>O nome contém um caractere invisível.</translation>
    </message>
    <message>
        <source>The name contains a sign that is not complete.</source>
        <translation>O nome contém um caractere incompleto.</translation>
    </message>
    <message>
        <source>The name must not end in a full stop or a blank.</source>
        <translation>O nome não pode terminar em ponto ou espaço.</translation>
    </message>
    <message>
        <source>The name must not begin with a blank.</source>
        <translation>O nome não pode começar com espaço.</translation>
    </message>
    <message>
        <source>A stick cannot hold a file with this name.</source>
        <translation>Um pen drive não aceita um arquivo com este nome.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>O nome é longo demais.</translation>
    </message>
    <message>
        <source>%2 exists already.</source>
        <translation>%2 já existe.</translation>
    </message>
    <message numerus="yes">
        <source>%2 is active and holds %n file(s).</source>
        <translation>
            <numerusform>%2 está em uso e contém %n arquivo.</numerusform>
            <numerusform>%2 está em uso e contém %n arquivos.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%2 holds %n file(s).</source>
        <translation>
            <numerusform>%2 contém %n arquivo.</numerusform>
            <numerusform>%2 contém %n arquivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>%2 is active.</source>
        <translation>%2 está em uso.</translation>
    </message>
    <message>
        <source>%2 is no longer there.</source>
        <translation>%2 não existe mais.</translation>
    </message>
    <message>
        <source>A stick cannot tell %2 from %3.</source>
        <translation>Um pen drive não distingue %2 de %3.</translation>
    </message>
    <message>
        <source>Another program is working on the fields. Try again later.</source>
        <translation>Outro programa está trabalhando nos talhões. Tentar mais tarde.</translation>
    </message>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Não foi possível salvar a seleção.</translation>
    </message>
    <message>
        <source>%1 is neither a file nor a folder.</source>
        <translation>%1 não é arquivo nem pasta.</translation>
    </message>
    <message>
        <source>The file was edited or is damaged.</source>
        <translation>O arquivo foi editado ou está danificado.</translation>
    </message>
    <message>
        <source>%1 cannot be read. %2</source>
        <translation>Não é possível ler %1. %2</translation>
    </message>
    <message>
        <source>The file is of another kind.</source>
        <translation>O arquivo é de outro tipo.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>O arquivo está vazio.</translation>
    </message>
    <message>
        <source>The end of the file is missing.</source>
        <translation>Falta o fim do arquivo.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>O arquivo está danificado.</translation>
    </message>
    <message>
        <source>The file is not complete.</source>
        <translation>O arquivo está incompleto.</translation>
    </message>
    <message>
        <source>The file is from another version of the software.</source>
        <translation>O arquivo é de outra versão do software.</translation>
    </message>
    <message>
        <source>The file has a value that is not possible: %2</source>
        <translation>O arquivo tem um valor impossível: %2</translation>
    </message>
    <message>
        <source>The file has a value twice: %2</source>
        <translation>O arquivo tem o mesmo ajuste duas vezes: %2</translation>
    </message>
    <message>
        <source>This address is not possible: %1</source>
        <translation>Este endereço não é possível: %1</translation>
    </message>
    <message>
        <source>The device is not there.</source>
        <translation>O dispositivo não está presente.</translation>
    </message>
    <message>
        <source>It is not permitted, or another program uses it.</source>
        <translation>Não é permitido, ou outro programa o usa.</translation>
    </message>
    <message>
        <source>Another program uses it.</source>
        <translation>Outro programa o usa.</translation>
    </message>
    <message>
        <source>It cannot be read.</source>
        <translation>Não pode ser lido.</translation>
    </message>
    <message>
        <source>It was unplugged.</source>
        <translation>Foi desconectado.</translation>
    </message>
    <message>
        <source>It is not a serial device, or it cannot have this speed.</source>
        <translation>Não é um dispositivo serial ou não aceita esta velocidade.</translation>
    </message>
    <message>
        <source>The serial port has a fault (number %1).</source>
        <translation>A porta serial tem uma falha (número %1).</translation>
    </message>
    <message>
        <source>%1 is damaged or of another kind.</source>
        <translation>O arquivo %1 está danificado ou é de outro tipo.</translation>
    </message>
    <message>
        <source>%1 is from another version of the software.</source>
        <translation>O arquivo %1 é de outra versão do software.</translation>
    </message>
    <message>
        <source>%1 is damaged.</source>
        <translation>O arquivo %1 está danificado.</translation>
    </message>
    <message>
        <source>%1 has other coordinates than WGS84.</source>
        <translation>O arquivo %1 não tem coordenadas WGS84.</translation>
    </message>
    <message>
        <source>%1 is not complete. %2 is missing.</source>
        <translation>O arquivo %1 está incompleto. Falta %2.</translation>
    </message>
    <message>
        <source>%1 has no areas.</source>
        <translation>O arquivo %1 não tem áreas.</translation>
    </message>
    <message>
        <source>Another program uses %1.</source>
        <translation>Outro programa usa %1.</translation>
    </message>
    <message>
        <source>A and B are too close together or too far apart.</source>
        <translation>A e B estão perto demais ou longe demais um do outro.</translation>
    </message>
    <message>
        <source>Another program has locked it.</source>
        <translation>Outro programa o bloqueou.</translation>
    </message>
    <message>
        <source>It is no longer there.</source>
        <translation>O arquivo não existe mais.</translation>
    </message>
    <message>
        <source>%1 is no longer there.</source>
        <translation>%1 não existe mais.</translation>
    </message>
    <message>
        <source>%1 cannot be written. %2</source>
        <translation>Não é possível gravar %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>Não é possível gravar %1.</translation>
    </message>
    <message>
        <source>The file of the settings has a fault (number %1).</source>
        <translation>O arquivo dos ajustes tem uma falha (número %1).</translation>
    </message>
    <message>
        <source>%1 cannot be opened. %2</source>
        <translation>Não é possível abrir %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be created. %2</source>
        <translation>Não é possível criar %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied. %2</source>
        <translation>Não é possível copiar %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be renamed. %2</source>
        <translation>Não é possível renomear %1. %2</translation>
    </message>
    <message>
        <source>%1 cannot be removed. %2</source>
        <translation>Não é possível remover %1. %2</translation>
    </message>
    <message>
        <source>The drive is full.</source>
        <translation>O disco está cheio.</translation>
    </message>
    <message>
        <source>The drive has a fault.</source>
        <translation>O disco tem uma falha.</translation>
    </message>
    <message>
        <source>The drive can only be read.</source>
        <translation>O disco só pode ser lido.</translation>
    </message>
    <message>
        <source>It is not permitted.</source>
        <translation>Não é permitido.</translation>
    </message>
    <message>
        <source>It cannot be opened.</source>
        <translation>Não pode ser aberto.</translation>
    </message>
    <message>
        <source>It is damaged.</source>
        <translation>O arquivo está danificado.</translation>
    </message>
    <message>
        <source>It is not there.</source>
        <translation>O caminho não existe.</translation>
    </message>
    <message>
        <source>It exists already.</source>
        <translation>O nome já existe.</translation>
    </message>
    <message>
        <source>It is a folder.</source>
        <translation>É uma pasta.</translation>
    </message>
    <message>
        <source>It is not a folder.</source>
        <translation>Não é uma pasta.</translation>
    </message>
    <message>
        <source>The folder is not empty.</source>
        <translation>A pasta não está vazia.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>O arquivo é grande demais.</translation>
    </message>
    <message>
        <source>Too many files are open.</source>
        <translation>Há arquivos demais abertos.</translation>
    </message>
    <message>
        <source>There is too little memory.</source>
        <translation>Não há memória suficiente.</translation>
    </message>
    <message>
        <source>It is not possible there.</source>
        <translation>Não é possível nesse lugar.</translation>
    </message>
    <message>
        <source>The device refuses the connection.</source>
        <translation>O dispositivo recusa a conexão.</translation>
    </message>
    <message>
        <source>The device has closed the connection.</source>
        <translation>O dispositivo fechou a conexão.</translation>
    </message>
    <message>
        <source>There is no device with this address.</source>
        <translation>Nenhum dispositivo tem este endereço.</translation>
    </message>
    <message>
        <source>The network cannot be reached.</source>
        <translation>A rede está fora de alcance.</translation>
    </message>
    <message>
        <source>The device does not answer.</source>
        <translation>O dispositivo não responde.</translation>
    </message>
    <message>
        <source>It is a link to another place.</source>
        <translation>É um link para outro lugar.</translation>
    </message>
    <message>
        <source>There are too many links to it.</source>
        <translation>Há links demais que levam até lá.</translation>
    </message>
</context>
<context>
    <name>ItemActions</name>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
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
        <translation>Novo</translation>
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
        <translation>No mínimo %1 %2</translation>
    </message>
    <message>
        <source>At most %1 %2</source>
        <translation>No máximo %1 %2</translation>
    </message>
    <message>
        <source>This is not a number yet.</source>
        <translation>Ainda não é um número.</translation>
    </message>
    <message>
        <source>Too large.
%1</source>
        <translation>Grande demais.
%1</translation>
    </message>
    <message>
        <source>Too small.
%1</source>
        <translation>Pequeno demais.
%1</translation>
    </message>
    <message>
        <source>now %1</source>
        <translation>agora %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>Decimal sign</source>
        <translation>Separador decimal</translation>
    </message>
    <message>
        <source>Plus or minus</source>
        <translation>Mais ou menos</translation>
    </message>
    <message>
        <source>Remove the last sign</source>
        <translation>Apagar o último caractere</translation>
    </message>
    <message>
        <source>C</source>
        <comment>key that clears the entry</comment>
        <translation>C</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Apagar</translation>
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
        <translation>Marcar A, a primeira ponta da linha, aqui</translation>
    </message>
    <message>
        <source>B</source>
        <comment>the other end of the guidance line</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>Set B, the other end of the line, here</source>
        <translation>Marcar B, a outra ponta da linha, aqui</translation>
    </message>
    <message>
        <source>Set a flag here</source>
        <translation>Pôr bandeira aqui</translation>
    </message>
</context>
<context>
    <name>LineChoice</name>
    <message>
        <source>New</source>
        <translation>Nova</translation>
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
        <translation>%1 à esquerda</translation>
    </message>
    <message>
        <source>%1 to the right</source>
        <translation>%1 à direita</translation>
    </message>
</context>
<context>
    <name>LockLayer</name>
    <message>
        <source>The screen is locked. Hold the button to unlock it.</source>
        <translation>A tela está bloqueada. Manter o botão pressionado para desbloquear.</translation>
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
        <translation>Nenhuma linha ainda.</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>Implement width</source>
        <translation>Largura do implemento</translation>
    </message>
    <message>
        <source>Decides the guidance lines beside each other, and the area done</source>
        <translation>Define as linhas de orientação vizinhas e a área trabalhada</translation>
    </message>
    <message>
        <source>Implement behind the antenna</source>
        <translation>Implemento atrás da antena</translation>
    </message>
    <message>
        <source>How far the ground is covered behind the vehicle&apos;s place</source>
        <translation>A que distância atrás da posição do veículo o solo é coberto</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Cab display</source>
        <translation>Terminal de cabine</translation>
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
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>The heading is up. Turn north up</source>
        <translation>Rumo em cima. Girar o norte para cima</translation>
    </message>
    <message>
        <source>North is up. Turn the heading up</source>
        <translation>Norte em cima. Girar o rumo para cima</translation>
    </message>
    <message>
        <source>Centre the vehicle</source>
        <translation>Centralizar o veículo</translation>
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
        <translation>Confirmar</translation>
    </message>
</context>
<context>
    <name>PageTurner</name>
    <message>
        <source>Rows above</source>
        <translation>Linhas acima</translation>
    </message>
    <message>
        <source>Rows below</source>
        <translation>Linhas abaixo</translation>
    </message>
</context>
<context>
    <name>ParameterRow</name>
    <message>
        <source>%1: back to the first value</source>
        <translation>%1: voltar ao valor de fábrica</translation>
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
        <translation>um caminho absoluto que termina em &quot;/&quot; e não é &quot;/&quot;</translation>
    </message>
    <message>
        <source>an absolute path</source>
        <translation>um caminho absoluto</translation>
    </message>
    <message>
        <source>a UUID in small letters, such as 6ba7b810-9dad-41d1-80b4-00c04fd430c8</source>
        <translation>um UUID em letras minúsculas, como 6ba7b810-9dad-41d1-80b4-00c04fd430c8</translation>
    </message>
    <message>
        <source>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N or an absolute path</source>
        <translation>simulator, tcp://HOST:PORT, serial:///dev/NAME?baud=N ou um caminho absoluto</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ou false</translation>
    </message>
    <message>
        <source>a time in UTC, such as 2026-03-05T13:05:09Z</source>
        <translation>uma hora em UTC, como 2026-03-05T13:05:09Z</translation>
    </message>
    <message>
        <source>a colour: #rrggbb, #aarrggbb or a name such as navy</source>
        <translation>uma cor: #rrggbb, #aarrggbb ou um nome como navy</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>Not a whole number.</source>
        <translation>Não é um número inteiro.</translation>
    </message>
    <message>
        <source>Below the least value.</source>
        <translation>Abaixo do valor mínimo.</translation>
    </message>
    <message>
        <source>Above the greatest value.</source>
        <translation>Acima do valor máximo.</translation>
    </message>
    <message>
        <source>This cannot be the name of a file. Try: %1</source>
        <translation>Não pode ser nome de arquivo. Sugestão: %1</translation>
    </message>
    <message>
        <source>Not accepted. Expected: %1.</source>
        <translation>Não aceito. Esperado: %1.</translation>
    </message>
    <message>
        <source>a name without %1</source>
        <translation>um nome sem %1</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>um número inteiro</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>No mínimo %1</translation>
    </message>
</context>
<context>
    <name>Parameters</name>
    <message>
        <source>the operator has chosen the offset from UTC; GPS time keeps it instead of computing it</source>
        <translation>o operador escolheu a diferença para UTC; a hora GPS a mantém em vez de calculá-la</translation>
    </message>
    <message>
        <source>metric units; otherwise US or English units</source>
        <translation>unidades métricas; senão, unidades dos EUA ou imperiais</translation>
    </message>
    <message>
        <source>US measures when units are not metric; otherwise English measures</source>
        <translation>medidas dos EUA quando as unidades não são métricas; senão, medidas imperiais</translation>
    </message>
    <message>
        <source>positions in degrees, minutes and seconds; otherwise in decimal degrees</source>
        <translation>posições em graus, minutos e segundos; senão, em graus decimais</translation>
    </message>
    <message>
        <source>24-hour clock; otherwise 12 hours with am and pm</source>
        <translation>relógio de 24 horas; senão, 12 horas com am e pm</translation>
    </message>
    <message>
        <source>dates with the month before the day</source>
        <translation>datas com o mês antes do dia</translation>
    </message>
    <message>
        <source>colours for day; otherwise for night</source>
        <translation>cores para o dia; senão, para a noite</translation>
    </message>
    <message>
        <source>the map turns with the vehicle; otherwise north is up</source>
        <translation>o mapa gira com o veículo; senão, o norte fica em cima</translation>
    </message>
    <message>
        <source>unit of pressures</source>
        <translation>unidade das pressões</translation>
    </message>
    <message>
        <source>unit of areas, and of rates per area</source>
        <translation>unidade das áreas e das taxas por área</translation>
    </message>
    <message>
        <source>unit of short distances: widths, offsets</source>
        <translation>unidade das distâncias curtas: larguras, deslocamentos</translation>
    </message>
    <message>
        <source>unit of granular volumes</source>
        <translation>unidade dos volumes de granulado</translation>
    </message>
    <message>
        <source>unit of granular densities</source>
        <translation>unidade das densidades de granulado</translation>
    </message>
    <message>
        <source>unit of liquid volumes, flows and rates</source>
        <translation>unidade de volumes, vazões e taxas de líquido</translation>
    </message>
    <message>
        <source>language of the display&apos;s texts; a change needs a restart</source>
        <translation>idioma dos textos do terminal; uma mudança exige um reinício</translation>
    </message>
    <message>
        <source>decimal point or comma; a change needs a restart</source>
        <translation>ponto ou vírgula decimal; uma mudança exige um reinício</translation>
    </message>
    <message>
        <source>when the colours switch between day and night: only by hand, at sunrise and sunset, or with the sun 6 degrees below the horizon</source>
        <translation>quando as cores trocam entre dia e noite: só manualmente, ao nascer e ao pôr do sol, ou com o sol 6 graus abaixo do horizonte</translation>
    </message>
    <message>
        <source>what set the display&apos;s clock</source>
        <translation>o que acertou o relógio do terminal</translation>
    </message>
    <message>
        <source>local time less UTC, whole hours</source>
        <translation>hora local menos UTC, horas inteiras</translation>
    </message>
    <message>
        <source>local time less UTC, minutes beyond the hours, with the sign of the hours</source>
        <translation>hora local menos UTC, minutos além das horas, com o sinal das horas</translation>
    </message>
    <message>
        <source>brightness of the lightbar at night</source>
        <translation>brilho da barra de luzes à noite</translation>
    </message>
    <message>
        <source>brightness of the screen at night</source>
        <translation>brilho da tela à noite</translation>
    </message>
    <message>
        <source>brightness of the button lights at night</source>
        <translation>brilho das luzes dos botões à noite</translation>
    </message>
    <message>
        <source>4: implements are kept in the folder of their vehicle; other numbers: in their own folder</source>
        <translation>4: os implementos ficam na pasta do seu veículo; outros números: em pasta própria</translation>
    </message>
    <message>
        <source>number of the next file of the NMEA log</source>
        <translation>número do próximo arquivo do registro NMEA</translation>
    </message>
    <message>
        <source>number of the next file of the user log</source>
        <translation>número do próximo arquivo do registro do operador</translation>
    </message>
    <message>
        <source>the display&apos;s clock less UTC</source>
        <translation>o relógio do terminal menos UTC</translation>
    </message>
    <message>
        <source>folder of the internal drive; by default in the data folder</source>
        <translation>pasta do disco interno; por padrão, na pasta de dados</translation>
    </message>
    <message>
        <source>mount point of the removable drive; by default in the data folder</source>
        <translation>ponto de montagem do disco removível; por padrão, na pasta de dados</translation>
    </message>
    <message>
        <source>the identity of the terminal, which its profiles carry</source>
        <translation>a identificação do terminal, que vai nos seus perfis</translation>
    </message>
    <message>
        <source>where the sentences of the receiver come from</source>
        <translation>de onde vêm as sentenças do receptor</translation>
    </message>
    <message>
        <source>the figures beside the map, in this order</source>
        <translation>os valores ao lado do mapa, nesta ordem</translation>
    </message>
    <message>
        <source>the newest time of a receiver, as of the last day on which one was seen</source>
        <translation>a hora mais recente de um receptor, do último dia em que havia um</translation>
    </message>
    <message>
        <source>when the sun switched the colours last</source>
        <translation>quando o sol trocou as cores pela última vez</translation>
    </message>
    <message>
        <source>the active job</source>
        <translation>o trabalho ativo</translation>
    </message>
    <message>
        <source>the active boundary</source>
        <translation>o limite ativo</translation>
    </message>
    <message>
        <source>the active straight guidance line</source>
        <translation>a linha de orientação reta ativa</translation>
    </message>
    <message>
        <source>the active pivot</source>
        <translation>o pivô ativo</translation>
    </message>
    <message>
        <source>the active guidance curve</source>
        <translation>a curva de orientação ativa</translation>
    </message>
    <message>
        <source>the active shape file of optimal lines</source>
        <translation>o arquivo shape ativo das linhas ótimas</translation>
    </message>
    <message>
        <source>the active shape file of project lines</source>
        <translation>o arquivo shape ativo das linhas do projeto</translation>
    </message>
    <message>
        <source>the active shape file of zones</source>
        <translation>o arquivo shape ativo das zonas</translation>
    </message>
    <message>
        <source>the active steering profile</source>
        <translation>o perfil de direção ativo</translation>
    </message>
    <message>
        <source>the active implement</source>
        <translation>o implemento ativo</translation>
    </message>
    <message>
        <source>the active vehicle</source>
        <translation>o veículo ativo</translation>
    </message>
    <message>
        <source>the active sprayer</source>
        <translation>o pulverizador ativo</translation>
    </message>
    <message>
        <source>the active boom leveller</source>
        <translation>o nivelador de barra ativo</translation>
    </message>
    <message>
        <source>the active client</source>
        <translation>o cliente ativo</translation>
    </message>
    <message>
        <source>the active farm</source>
        <translation>a fazenda ativa</translation>
    </message>
    <message>
        <source>the active field</source>
        <translation>o talhão ativo</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Sistema de medidas</translation>
    </message>
    <message>
        <source>Gallons and bushels</source>
        <translation>Galões e bushels</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Área</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressão</translation>
    </message>
    <message>
        <source>Short distances</source>
        <translation>Distâncias curtas</translation>
    </message>
    <message>
        <source>Liquid</source>
        <translation>Líquido</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Volume de granulado</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Densidade de granulado</translation>
    </message>
    <message>
        <source>Positions</source>
        <translation>Posições</translation>
    </message>
    <message>
        <source>Rate per travel</source>
        <translation>Taxa por percurso</translation>
    </message>
    <message>
        <source>Basis of rates</source>
        <translation>Base das taxas</translation>
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
        <translation>Formato da hora</translation>
    </message>
    <message>
        <source>Dates</source>
        <translation>Formato da data</translation>
    </message>
    <message>
        <source>Time zone set by hand</source>
        <translation>Fuso horário manual</translation>
    </message>
    <message>
        <source>Time zone, hours</source>
        <translation>Fuso horário, horas</translation>
    </message>
    <message>
        <source>Time zone, minutes</source>
        <translation>Fuso horário, minutos</translation>
    </message>
    <message>
        <source>Clock less UTC</source>
        <translation>Relógio menos UTC</translation>
    </message>
    <message>
        <source>Source of the time</source>
        <translation>Fonte da hora</translation>
    </message>
    <message>
        <source>Source of the time since</source>
        <translation>Fonte da hora desde</translation>
    </message>
    <message>
        <source>Newest receiver time</source>
        <translation>Última hora do receptor</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>Day and night</source>
        <translation>Dia e noite</translation>
    </message>
    <message>
        <source>Map direction</source>
        <translation>Orientação do mapa</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Blocos</translation>
    </message>
    <message>
        <source>Light bar at night</source>
        <translation>Barra de luzes à noite</translation>
    </message>
    <message>
        <source>Screen at night</source>
        <translation>Tela à noite</translation>
    </message>
    <message>
        <source>Button lights at night</source>
        <translation>Luz dos botões à noite</translation>
    </message>
    <message>
        <source>Switched by the sun</source>
        <translation>Troca conforme o sol</translation>
    </message>
    <message>
        <source>Client</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Farm</source>
        <translation>Fazenda</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Talhão</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>Trabalho</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Veículo</translation>
    </message>
    <message>
        <source>Implement</source>
        <translation>Implemento</translation>
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
        <translation>Perfil de direção</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>A-B line</source>
        <translation>Linha A-B</translation>
    </message>
    <message>
        <source>Pivot</source>
        <translation>Pivô</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Optimal lines</source>
        <translation>Linhas ótimas</translation>
    </message>
    <message>
        <source>Project lines</source>
        <translation>Linhas do projeto</translation>
    </message>
    <message>
        <source>Zones</source>
        <translation>Zonas</translation>
    </message>
    <message>
        <source>Receiver address</source>
        <translation>Endereço do receptor</translation>
    </message>
    <message>
        <source>Internal drive</source>
        <translation>Disco interno</translation>
    </message>
    <message>
        <source>Stick</source>
        <translation>Pen drive</translation>
    </message>
    <message>
        <source>Implement folder</source>
        <translation>Pasta do implemento</translation>
    </message>
    <message>
        <source>Next NMEA log</source>
        <translation>Próximo registro NMEA</translation>
    </message>
    <message>
        <source>Next user log</source>
        <translation>Próx. registro do operador</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identificação</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Colour of texts</source>
        <translation>Cor dos textos</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Colour of titles</source>
        <translation>Cor dos títulos</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fundo</translation>
    </message>
    <message>
        <source>Colour of the background</source>
        <translation>Cor do fundo</translation>
    </message>
    <message>
        <source>Button</source>
        <translation>Botão</translation>
    </message>
    <message>
        <source>Colour of buttons</source>
        <translation>Cor dos botões</translation>
    </message>
    <message>
        <source>Button text</source>
        <translation>Texto do botão</translation>
    </message>
    <message>
        <source>Colour of texts on buttons</source>
        <translation>Cor dos textos nos botões</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s ground</source>
        <translation>Cor do fundo do mapa</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grade</translation>
    </message>
    <message>
        <source>Colour of the map&apos;s grid</source>
        <translation>Cor da grade do mapa</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Cobertura</translation>
    </message>
    <message>
        <source>Colour of covered ground</source>
        <translation>Cor do solo coberto</translation>
    </message>
    <message>
        <source>Vehicle on the map</source>
        <translation>Veículo no mapa</translation>
    </message>
    <message>
        <source>Colour of the vehicle</source>
        <translation>Cor do veículo</translation>
    </message>
    <message>
        <source>Guidance line</source>
        <translation>Linha de orientação</translation>
    </message>
    <message>
        <source>Colour of the guidance line</source>
        <translation>Cor da linha de orientação</translation>
    </message>
    <message>
        <source>Cross hairs</source>
        <translation>Mira</translation>
    </message>
    <message>
        <source>Colour of the cross hairs</source>
        <translation>Cor da mira</translation>
    </message>
    <message>
        <source>Outer boundary</source>
        <translation>Limite externo</translation>
    </message>
    <message>
        <source>Colour of the outer boundary of the field</source>
        <translation>Cor do limite externo do talhão</translation>
    </message>
    <message>
        <source>Inner boundary</source>
        <translation>Limite interno</translation>
    </message>
    <message>
        <source>Colour of boundaries within the field</source>
        <translation>Cor dos limites dentro do talhão</translation>
    </message>
    <message>
        <source>Other boundaries</source>
        <translation>Outros limites</translation>
    </message>
    <message>
        <source>Colour of boundaries that are not active</source>
        <translation>Cor dos limites não ativos</translation>
    </message>
    <message>
        <source>Exclusion zone</source>
        <translation>Zona de exclusão</translation>
    </message>
    <message>
        <source>Colour of zones to keep out of</source>
        <translation>Cor das zonas a evitar</translation>
    </message>
    <message>
        <source>Background picture</source>
        <translation>Imagem de fundo</translation>
    </message>
    <message>
        <source>Number of the background picture</source>
        <translation>Número da imagem de fundo</translation>
    </message>
    <message>
        <source>what the sprayer&apos;s rates are related to</source>
        <translation>a que se referem as taxas do pulverizador</translation>
    </message>
    <message>
        <source>liquid rates per 100 m or 100 yd of travel, while travel is their basis</source>
        <translation>taxas de líquido por 100 m ou 100 yd de percurso, enquanto o percurso for a base</translation>
    </message>
    <message>
        <source>since when the clock has its time from there</source>
        <translation>desde quando o relógio recebe a hora dessa fonte</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>Métrico</translation>
    </message>
    <message>
        <source>US or English</source>
        <translation>EUA ou imperial</translation>
    </message>
    <message>
        <source>US</source>
        <translation>EUA</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Imperial</translation>
    </message>
    <message>
        <source>Deg., min., s</source>
        <translation>Graus, min, s</translation>
    </message>
    <message>
        <source>Degrees</source>
        <translation>Graus</translation>
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
        <translation>Mês primeiro</translation>
    </message>
    <message>
        <source>Day first</source>
        <translation>Dia primeiro</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Dia</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Noite</translation>
    </message>
    <message>
        <source>Heading up</source>
        <translation>Rumo em cima</translation>
    </message>
    <message>
        <source>North up</source>
        <translation>Norte em cima</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ligado</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>Percurso</translation>
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
        <translation>Hectare</translation>
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
        <translation>Polegada</translation>
    </message>
    <message>
        <source>Foot</source>
        <translation>Pé</translation>
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
        <translation>Ponto</translation>
    </message>
    <message>
        <source>Comma</source>
        <translation>Vírgula</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sunset</source>
        <translation>Pôr do sol</translation>
    </message>
    <message>
        <source>Twilight</source>
        <translation>Crepúsculo</translation>
    </message>
    <message>
        <source>Not set</source>
        <translation>Não acertado</translation>
    </message>
    <message>
        <source>Operator</source>
        <translation>Operador</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Receptor</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Taxa</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Area done</source>
        <translation>Área trabalhada</translation>
    </message>
    <message>
        <source>Area left</source>
        <translation>Área restante</translation>
    </message>
    <message>
        <source>Productivity</source>
        <translation>Rend. operacional</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Vazão</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distância</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
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
        <translation>Taxas</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Região</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Relógio</translation>
    </message>
    <message>
        <source>Colours of the schemes</source>
        <translation>Cores dos temas</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Tela</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Seleção</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Armazenamento</translation>
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
        <translation>%1, de dia</translation>
    </message>
    <message>
        <source>%1, by night</source>
        <translation>%1, à noite</translation>
    </message>
</context>
<context>
    <name>Problems</name>
    <message>
        <source>The logs lose lines: their drive is full or cannot be written.</source>
        <translation>Os registros perdem linhas: o disco está cheio ou não pode ser gravado.</translation>
    </message>
    <message>
        <source>Recording is off, because there is too little room.</source>
        <translation>A gravação está desligada por falta de espaço.</translation>
    </message>
    <message>
        <source>Changes of settings are not stored yet. %1</source>
        <translation>As alterações de ajustes ainda não foram salvas. %1</translation>
    </message>
    <message>
        <source>The drive of the terminal is nearly full. Free: %1</source>
        <translation>O disco do terminal está quase cheio. Livres: %1</translation>
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
        <translation>O terminal já tem estes ajustes.</translation>
    </message>
    <message>
        <source>Changed here and in the profile</source>
        <translation>Alterado aqui e no perfil</translation>
    </message>
    <message>
        <source>Which value the settings below shall have</source>
        <translation>Que valor os ajustes abaixo devem ter</translation>
    </message>
    <message>
        <source>Ours</source>
        <translation>O daqui</translation>
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
        <translation>Perfis</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>There is no profile on the stick.</source>
        <translation>Não há nenhum perfil no pen drive.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Nenhum pen drive conectado.</translation>
    </message>
    <message>
        <source>Name of the profile</source>
        <translation>Nome do perfil</translation>
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
        <translation>Rend. operacional</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distância</translation>
    </message>
    <message>
        <source>Small distance</source>
        <translation>Distância pequena</translation>
    </message>
    <message>
        <source>Travelled distance</source>
        <translation>Distância percorrida</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pressão</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Taxa</translation>
    </message>
    <message>
        <source>Requested rate</source>
        <translation>Taxa desejada</translation>
    </message>
    <message>
        <source>Rate and error</source>
        <translation>Taxa e desvio</translation>
    </message>
    <message>
        <source>Small rate</source>
        <translation>Taxa pequena</translation>
    </message>
    <message>
        <source>Flow</source>
        <translation>Vazão</translation>
    </message>
    <message>
        <source>Small flow</source>
        <translation>Vazão pequena</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Small volume</source>
        <translation>Volume pequeno</translation>
    </message>
    <message>
        <source>Granular volume</source>
        <translation>Volume de granulado</translation>
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
        <translation>Peso por área e desvio</translation>
    </message>
    <message>
        <source>Discharge</source>
        <translation>Vazão mássica</translation>
    </message>
    <message>
        <source>Nitrogen</source>
        <translation>Nitrogênio</translation>
    </message>
    <message>
        <source>Nitrogen per area</source>
        <translation>Nitrogênio por área</translation>
    </message>
    <message>
        <source>Seeds per area</source>
        <translation>Sementes por área</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Densidade</translation>
    </message>
    <message>
        <source>Granular density</source>
        <translation>Densidade de granulado</translation>
    </message>
    <message>
        <source>Volume per revolution</source>
        <translation>Volume por volta</translation>
    </message>
    <message>
        <source>Weight per revolution</source>
        <translation>Peso por volta</translation>
    </message>
    <message>
        <source>Flow meter</source>
        <translation>Medidor de vazão</translation>
    </message>
    <message>
        <source>Wheel sensor</source>
        <translation>Sensor de roda</translation>
    </message>
    <message>
        <source>Speed sensor</source>
        <translation>Sensor de velocidade</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentagem</translation>
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
        <translation>desejada %1</translation>
    </message>
</context>
<context>
    <name>Receiver</name>
    <message>
        <source>Off</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>Conectando</translation>
    </message>
    <message>
        <source>Receiving</source>
        <translation>Recebendo</translation>
    </message>
    <message>
        <source>Silent</source>
        <translation>Sem dados</translation>
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
        <translation>Sem posição</translation>
    </message>
    <message>
        <source>RTK float</source>
        <translation>RTK float</translation>
    </message>
    <message>
        <source>Estimated</source>
        <translation>Estimativa</translation>
    </message>
    <message>
        <source>By hand</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Simulated</source>
        <translation>Simulação</translation>
    </message>
    <message>
        <source>The receiver sends nothing.</source>
        <translation>O receptor não envia nada.</translation>
    </message>
    <message>
        <source>The receiver is lost and is being looked for. %1</source>
        <translation>Receptor perdido; buscando. %1</translation>
    </message>
    <message>
        <source>The receiver cannot be read. %1</source>
        <translation>Não é possível ler o receptor. %1</translation>
    </message>
    <message>
        <source>The simulated field is done.</source>
        <translation>O talhão simulado terminou.</translation>
    </message>
    <message>
        <source>The recording of the receiver is over.</source>
        <translation>A gravação do receptor terminou.</translation>
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
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Rede</translation>
    </message>
    <message>
        <source>Serial</source>
        <translation>Serial</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Tipo de posição</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Idade</translation>
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
        <translation>Linhas</translation>
    </message>
    <message>
        <source>Sentences</source>
        <translation>Sentenças</translation>
    </message>
    <message>
        <source>Bad checksums</source>
        <translation>Checksums errados</translation>
    </message>
    <message>
        <source>Damaged lines</source>
        <translation>Linhas danificadas</translation>
    </message>
    <message>
        <source>Address of the receiver</source>
        <translation>Endereço do receptor</translation>
    </message>
</context>
<context>
    <name>RegionPage</name>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Fuso horário</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e hora</translation>
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
        <translation>Buscar um ajuste</translation>
    </message>
    <message>
        <source>No setting has these words.</source>
        <translation>Nenhum ajuste com estas palavras.</translation>
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
        <translation>Região</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Cores</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Tela</translation>
    </message>
    <message>
        <source>Machine</source>
        <translation>Máquina</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>Discos</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Blocos</translation>
    </message>
    <message>
        <source>Profiles</source>
        <translation>Perfis</translation>
    </message>
    <message>
        <source>All settings</source>
        <translation>Todos os ajustes</translation>
    </message>
</context>
<context>
    <name>SettingsPanel</name>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
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
        <translation>Sem trabalho</translation>
    </message>
    <message>
        <source>Receiver: %1</source>
        <translation>Receptor: %1</translation>
    </message>
    <message>
        <source>The stick is plugged in</source>
        <translation>Pen drive conectado</translation>
    </message>
    <message>
        <source>Lock the screen</source>
        <translation>Bloquear a tela</translation>
    </message>
    <message>
        <source>Colours of the night</source>
        <translation>Cores da noite</translation>
    </message>
    <message>
        <source>Colours of the day</source>
        <translation>Cores do dia</translation>
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
        <translation>Pen drive</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Nenhum pen drive conectado.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Memória RAM</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Writes all log files to the stick</source>
        <translation>Grava todos os registros no pen drive</translation>
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
        <translation>Perfis</translation>
    </message>
    <message>
        <source>Takes the settings to another display, or brings them back from the stick</source>
        <translation>Leva os ajustes para outro terminal ou os traz de volta do pen drive</translation>
    </message>
    <message>
        <source>Open the profiles</source>
        <translation>Abrir os perfis</translation>
    </message>
    <message>
        <source>Support</source>
        <translation>Suporte</translation>
    </message>
    <message>
        <source>Writes logs, settings and versions in one file; without the names of clients, farms and fields</source>
        <translation>Grava registros, ajustes e versões em um arquivo; sem os nomes de clientes, fazendas e talhões</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Gravar</translation>
    </message>
    <message>
        <source>Write the file for support without names</source>
        <translation>Gravar o arquivo para o suporte sem nomes</translation>
    </message>
    <message>
        <source>Support, with names</source>
        <translation>Suporte, com nomes</translation>
    </message>
    <message>
        <source>The same file, with all names and places</source>
        <translation>O mesmo arquivo, com todos os nomes e lugares</translation>
    </message>
    <message>
        <source>Write the file for support with names</source>
        <translation>Gravar o arquivo para o suporte com nomes</translation>
    </message>
</context>
<context>
    <name>TFieldTreeModel</name>
    <message>
        <source>A job holds no items.</source>
        <translation>Um trabalho não contém outros itens.</translation>
    </message>
    <message>
        <source>There is one with this name already.</source>
        <translation>Este nome já existe.</translation>
    </message>
    <message numerus="yes">
        <source>%n file(s), %1</source>
        <translation>
            <numerusform>%n arquivo, %1</numerusform>
            <numerusform>%n arquivos, %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TParameter</name>
    <message>
        <source>The setting could not be written to the disk yet.</source>
        <translation>Ainda não foi possível gravar o ajuste no disco.</translation>
    </message>
    <message>
        <source>There is no value to set.</source>
        <translation>Não há valor para ajustar.</translation>
    </message>
</context>
<context>
    <name>TRegionSettings</name>
    <message>
        <source>Jan</source>
        <translation>jan.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>fev.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>abr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai.</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>ago.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>set.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>out.</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dez.</translation>
    </message>
</context>
<context>
    <name>TRestart</name>
    <message>
        <source>The new language is shown after a restart.</source>
        <translation>O novo idioma aparece após um reinício.</translation>
    </message>
    <message>
        <source>The new decimal sign is shown after a restart.</source>
        <translation>O novo separador decimal aparece após um reinício.</translation>
    </message>
</context>
<context>
    <name>TSelections</name>
    <message>
        <source>The selection could not be stored.</source>
        <translation>Não foi possível salvar a seleção.</translation>
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
        <translation>Sem veículo</translation>
    </message>
    <message>
        <source>No Profile</source>
        <translation>Sem perfil</translation>
    </message>
    <message>
        <source>No Implement</source>
        <translation>Sem implemento</translation>
    </message>
    <message>
        <source>Pivoted_</source>
        <translation>Arrasto_</translation>
    </message>
</context>
<context>
    <name>TTransfer</name>
    <message>
        <source>The name is empty.</source>
        <translation>O nome está vazio.</translation>
    </message>
</context>
<context>
    <name>TUnitAbbreviations</name>
    <message>
        <source>Jan</source>
        <translation>jan.</translation>
    </message>
    <message>
        <source>Feb</source>
        <translation>fev.</translation>
    </message>
    <message>
        <source>Mar</source>
        <translation>mar.</translation>
    </message>
    <message>
        <source>Apr</source>
        <translation>abr.</translation>
    </message>
    <message>
        <source>May</source>
        <translation>mai.</translation>
    </message>
    <message>
        <source>Jun</source>
        <translation>jun.</translation>
    </message>
    <message>
        <source>Jul</source>
        <translation>jul.</translation>
    </message>
    <message>
        <source>Aug</source>
        <translation>ago.</translation>
    </message>
    <message>
        <source>Sep</source>
        <translation>set.</translation>
    </message>
    <message>
        <source>Oct</source>
        <translation>out.</translation>
    </message>
    <message>
        <source>Nov</source>
        <translation>nov.</translation>
    </message>
    <message>
        <source>Dec</source>
        <translation>dez.</translation>
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
        <translation>milhas</translation>
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
        <translation>m/pulso</translation>
    </message>
    <message>
        <source>ft/pulse</source>
        <translation>ft/pulso</translation>
    </message>
    <message>
        <source>pulses/L</source>
        <translation>pulsos/L</translation>
    </message>
    <message>
        <source>pulses/gal</source>
        <translation>pulsos/gal</translation>
    </message>
    <message>
        <source>pulses/mL</source>
        <translation>pulsos/mL</translation>
    </message>
    <message>
        <source>pulses/fl.oz</source>
        <translation>pulsos/fl.oz</translation>
    </message>
    <message>
        <source>pulses/m³</source>
        <translation>pulsos/m³</translation>
    </message>
    <message>
        <source>pulses/ft³</source>
        <translation>pulsos/ft³</translation>
    </message>
    <message>
        <source>pulses/t</source>
        <translation>pulsos/t</translation>
    </message>
    <message>
        <source>pulses/lb</source>
        <translation>pulsos/lb</translation>
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
        <translation>pulsos/kgN</translation>
    </message>
    <message>
        <source>pulses/lbN</source>
        <translation>pulsos/lbN</translation>
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
        <translation>Um implemento não pode ter esta largura.</translation>
    </message>
    <message>
        <source>A file of this job cannot be used. %1</source>
        <translation>Não é possível usar um arquivo deste trabalho. %1</translation>
    </message>
    <message>
        <source>Coverage was not complete and was left out: strips %1, bytes %2</source>
        <translation>Os dados de cobertura estavam incompletos e foram omitidos: faixas %1, bytes %2</translation>
    </message>
    <message>
        <source>The file of the flags is damaged; new flags are not stored.</source>
        <translation>O arquivo das bandeiras está danificado; novas bandeiras não são salvas.</translation>
    </message>
    <message>
        <source>A file could not be stored. %1</source>
        <translation>Não foi possível salvar um arquivo. %1</translation>
    </message>
    <message>
        <source>The file of the implement cannot be used. %1</source>
        <translation>Não é possível usar o arquivo do implemento. %1</translation>
    </message>
    <message>
        <source>There is no line.</source>
        <translation>Não há linha.</translation>
    </message>
    <message>
        <source>The line has no name.</source>
        <translation>A linha não tem nome.</translation>
    </message>
    <message>
        <source>The guidance line cannot be used. %1</source>
        <translation>Não é possível usar a linha de orientação. %1</translation>
    </message>
    <message>
        <source>No job is chosen</source>
        <translation>Nenhum trabalho escolhido</translation>
    </message>
    <message>
        <source>No job is chosen: what is covered is not stored.</source>
        <translation>Nenhum trabalho escolhido: o que é coberto não é salvo.</translation>
    </message>
    <message>
        <source>The coverage of this job cannot be used: what is covered is not stored.</source>
        <translation>Não é possível usar a cobertura deste trabalho: o que é coberto não é salvo.</translation>
    </message>
    <message>
        <source>The coverage cannot be stored, and strips are lost: %1</source>
        <translation>Não é possível salvar a cobertura e perdem-se faixas: %1</translation>
    </message>
    <message>
        <source>The coverage is kept in memory until it can be stored. %1</source>
        <translation>A cobertura fica na memória até poder ser salva. %1</translation>
    </message>
    <message>
        <source>The job is still being read.</source>
        <translation>O trabalho ainda está sendo lido.</translation>
    </message>
</context>
<context>
    <name>TileTurner</name>
    <message>
        <source>Tiles</source>
        <translation>Blocos</translation>
    </message>
</context>
<context>
    <name>Tiles</name>
    <message>
        <source>Rate</source>
        <translation>Taxa</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Velocidade</translation>
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
        <translation>Vazão</translation>
    </message>
    <message>
        <source>Press.</source>
        <comment>pressure</comment>
        <translation>Pressão</translation>
    </message>
    <message>
        <source>Temp.</source>
        <comment>temperature</comment>
        <translation>Temp.</translation>
    </message>
    <message>
        <source>Driven</source>
        <translation>Percurso</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
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
        <translation>Voltar à escolha inicial</translation>
    </message>
    <message>
        <source>%1 further ahead</source>
        <translation>%1: mover para cima</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Visível</translation>
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
        <translation>Nada foi importado: alguns ajustes foram alterados aqui e no perfil.</translation>
    </message>
    <message>
        <source>No stick is plugged in.</source>
        <translation>Nenhum pen drive conectado.</translation>
    </message>
    <message>
        <source>The stick was removed before everything was on it.</source>
        <translation>O pen drive foi retirado antes de tudo ser gravado.</translation>
    </message>
    <message>
        <source>The stick could not be written to the end.</source>
        <translation>Não foi possível terminar a gravação no pen drive.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>Não é possível criar a pasta %1.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written.</source>
        <translation>Não é possível gravar o arquivo %1.</translation>
    </message>
    <message>
        <source>The logs are on the stick (files: %1).</source>
        <translation>Os registros estão no pen drive (arquivos: %1).</translation>
    </message>
    <message>
        <source>The profile cannot be used. %1</source>
        <translation>Não é possível usar o perfil. %1</translation>
    </message>
    <message>
        <source>Nothing is imported. %1</source>
        <translation>Nada foi importado. %1</translation>
    </message>
    <message>
        <source>This display</source>
        <translation>Este terminal</translation>
    </message>
    <message>
        <source>Another display</source>
        <translation>Outro terminal</translation>
    </message>
    <message>
        <source>The profile is not on the stick. %1</source>
        <translation>O perfil não está no pen drive. %1</translation>
    </message>
    <message>
        <source>The profile is on the stick: %1.</source>
        <translation>O perfil está no pen drive: %1.</translation>
    </message>
    <message>
        <source>The file for support is not on the stick. %1</source>
        <translation>O arquivo para o suporte não está no pen drive. %1</translation>
    </message>
    <message>
        <source>The file for support is on the stick: %1.</source>
        <translation>O arquivo para o suporte está no pen drive: %1.</translation>
    </message>
    <message>
        <source>The profile is imported (settings changed: %1).</source>
        <translation>O perfil foi importado (ajustes alterados: %1).</translation>
    </message>
    <message>
        <source>It cannot be used.</source>
        <translation>Não pode ser usado.</translation>
    </message>
</context>
<context>
    <name>TransferState</name>
    <message>
        <source>Reading</source>
        <translation>Lendo</translation>
    </message>
    <message>
        <source>Writing</source>
        <translation>Gravando</translation>
    </message>
    <message>
        <source>Leave the stick where it is until this is done.</source>
        <translation>Deixar o pen drive no lugar até terminar.</translation>
    </message>
</context>
<context>
    <name>WorkPage</name>
    <message>
        <source>Waiting for a position</source>
        <translation>Esperando uma posição</translation>
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
        <translation>Trabalhando</translation>
    </message>
    <message>
        <source>Not working</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>Working. Switch the implement off</source>
        <translation>Trabalhando. Desligar o implemento</translation>
    </message>
    <message>
        <source>Not working. Switch the implement on</source>
        <translation>Desligado. Ligar o implemento</translation>
    </message>
</context>
</TS>
