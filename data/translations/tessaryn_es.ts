<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>AboutScreen</name>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>A craps table to play at, and to test betting systems on.</source>
        <translation>Una mesa de craps para jugar y para probar sistemas de apuestas.</translation>
    </message>
    <message>
        <source>About Tessaryn</source>
        <translation>Acerca de Tessaryn</translation>
    </message>
    <message>
        <source>Programs:  %1
Data:  %2</source>
        <translation>Programas:  %1
Datos:  %2</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3: see LICENSE.</source>
        <translation>Software libre bajo la GNU General Public License, versión 3: véase LICENSE.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
</context>
<context>
    <name>BankrollGraph</name>
    <message>
        <source>rolls</source>
        <translation>tiradas</translation>
    </message>
    <message>
        <source>No rolls</source>
        <translation>Sin tiradas</translation>
    </message>
    <message>
        <source>Rolls %1 to %2</source>
        <translation>Tiradas %1 a %2</translation>
    </message>
    <message>
        <source>High:  %1  Current:  %2  Low:  %3</source>
        <translation>Máx.:  %1  Actual:  %2  Mín.:  %3</translation>
    </message>
    <message>
        <source>%1 roll avg</source>
        <translation>Media de %1 tiradas</translation>
    </message>
    <message>
        <source>All rolls avg</source>
        <translation>Media de todas las tiradas</translation>
    </message>
</context>
<context>
    <name>BetButtons</name>
    <message>
        <source>Undo bet</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Repeat bets</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Full odds</source>
        <translation>Odds máx.</translation>
    </message>
</context>
<context>
    <name>BetFacts</name>
    <message>
        <source>one-roll bet</source>
        <translation>apuesta de una tirada</translation>
    </message>
    <message>
        <source>stays up until it is decided</source>
        <translation>se queda hasta decidirse</translation>
    </message>
    <message>
        <source>a contract: it stays up until it is decided</source>
        <translation>un contrato: se queda hasta decidirse</translation>
    </message>
    <message>
        <source>on the line: decided by the come-out or by the point</source>
        <translation>en la línea: la decide el come-out o el punto</translation>
    </message>
    <message>
        <source>odds behind %1</source>
        <translation>Odds detrás de %1</translation>
    </message>
    <message>
        <source>goes on over several rolls</source>
        <translation>sigue durante varias tiradas</translation>
    </message>
    <message>
        <source>%1 before 7</source>
        <translation>%1 antes de 7</translation>
    </message>
    <message>
        <source>7 before %1</source>
        <translation>7 antes de %1</translation>
    </message>
    <message>
        <source>7 or 11 on the come-out, then the point before 7</source>
        <translation>7 u 11 en el come-out, luego el punto antes de 7</translation>
    </message>
    <message>
        <source>2, 3 or 12 on the come-out, then 7 before the point</source>
        <translation>2, 3 o 12 en el come-out, luego 7 antes del punto</translation>
    </message>
    <message>
        <source>7 or 11 on the next roll, then its number before 7</source>
        <translation>7 u 11 en la próxima tirada, luego su número antes de 7</translation>
    </message>
    <message>
        <source>2, 3 or 12 on the next roll, then 7 before its number</source>
        <translation>2, 3 o 12 en la próxima tirada, luego 7 antes de su número</translation>
    </message>
    <message>
        <source>%1 or 3 on the come-out, then 7 before the point; %2 is barred</source>
        <translation>%1 o 3 en el come-out, luego 7 antes del punto; %2 está barrado</translation>
    </message>
    <message>
        <source>%1 or 3 on the next roll, then 7 before its number; %2 is barred</source>
        <translation>%1 o 3 en la próxima tirada, luego 7 antes de su número; %2 está barrado</translation>
    </message>
    <message>
        <source>the point before 7</source>
        <translation>el punto antes de 7</translation>
    </message>
    <message>
        <source>7 before the point</source>
        <translation>7 antes del punto</translation>
    </message>
    <message>
        <source>%1 on the next roll</source>
        <translation>%1 en la próxima tirada</translation>
    </message>
    <message>
        <source>any other roll</source>
        <translation>cualquier otra tirada</translation>
    </message>
    <message>
        <source>any other roll, but not on %1</source>
        <translation>cualquier otra tirada, pero no con %1</translation>
    </message>
    <message>
        <source>%1 as a pair, before 7 and before any other %1</source>
        <translation>%1 como par, antes de 7 y de cualquier otro %1</translation>
    </message>
    <message>
        <source>7, or %1 that is no pair</source>
        <translation>7, o %1 que no sea par</translation>
    </message>
    <message>
        <source>all of %1 before 7</source>
        <translation>todos los de %1 antes de 7</translation>
    </message>
    <message>
        <source>7 before the last of them</source>
        <translation>7 antes del último de ellos</translation>
    </message>
    <message>
        <source>four rolls without a 7</source>
        <translation>cuatro tiradas sin 7</translation>
    </message>
    <message>
        <source>7 within the four rolls</source>
        <translation>7 en las cuatro tiradas</translation>
    </message>
    <message>
        <source>a point, and 7 on the very next roll</source>
        <translation>un punto, y 7 en la tirada siguiente</translation>
    </message>
    <message>
        <source>7 on the come-out, or a point and 7 on the very next roll</source>
        <translation>7 en el come-out, o un punto y 7 en la tirada siguiente</translation>
    </message>
    <message>
        <source>anything else</source>
        <translation>todo lo demás</translation>
    </message>
    <message>
        <source>%1 points or more, made before the seven-out</source>
        <translation>%1 puntos o más, hechos antes del seven-out</translation>
    </message>
    <message>
        <source>%1 passes or more before the seven-out</source>
        <translation>%1 passes o más antes del seven-out</translation>
    </message>
    <message>
        <source>%1 different points or more, made before the seven-out</source>
        <translation>%1 puntos distintos o más, hechos antes del seven-out</translation>
    </message>
    <message>
        <source>a seven-out with fewer</source>
        <translation>un seven-out con menos</translation>
    </message>
    <message>
        <source>half each as Any Craps and Eleven</source>
        <translation>mitad en Any Craps y mitad en Eleven</translation>
    </message>
    <message>
        <source>a quarter each as Two, Three, Eleven and Twelve</source>
        <translation>un cuarto en cada uno de Two, Three, Eleven y Twelve</translation>
    </message>
    <message>
        <source>a fifth each as Two, Three, Seven, Eleven and Twelve</source>
        <translation>un quinto en cada uno de Two, Three, Seven, Eleven y Twelve</translation>
    </message>
    <message>
        <source>%1% of the bet, charged as it is made</source>
        <translation>%1 % de la apuesta, cobrado al hacerla</translation>
    </message>
    <message>
        <source>%1% of the bet, charged when it wins</source>
        <translation>%1 % de la apuesta, cobrado al ganar</translation>
    </message>
    <message>
        <source>%1% of the win, charged as it is made</source>
        <translation>%1 % de la ganancia, cobrado al hacerla</translation>
    </message>
    <message>
        <source>%1% of the win, charged when it wins</source>
        <translation>%1 % de la ganancia, cobrado al ganar</translation>
    </message>
    <message>
        <source>vig: %1</source>
        <translation>vig: %1</translation>
    </message>
    <message>
        <source>pays %1</source>
        <translation>paga %1</translation>
    </message>
    <message>
        <source>minimum %1</source>
        <translation>mínimo %1</translation>
    </message>
    <message>
        <source>may still be bet: %1</source>
        <translation>aún se puede apostar: %1</translation>
    </message>
    <message>
        <source>edge %1%</source>
        <translation>ventaja %1 %</translation>
    </message>
    <message>
        <source>edge %1% a roll</source>
        <translation>ventaja %1 % por tirada</translation>
    </message>
    <message>
        <source>not now: %1</source>
        <translation>ahora no: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Wins on: %1</source>
        <translation>Gana con: %1</translation>
    </message>
    <message>
        <source>Loses on: %1</source>
        <translation>Pierde con: %1</translation>
    </message>
    <message>
        <source>Pays: %1</source>
        <translation>Paga: %1</translation>
    </message>
    <message>
        <source>Next roll: wins %1, loses %2 in 36</source>
        <translation>Próxima tirada: gana %1, pierde %2 de 36</translation>
    </message>
    <message>
        <source>Off on the next roll; working it would win %1, lose %2 in 36</source>
        <translation>OFF en la próxima tirada; trabajando ganaría %1, perdería %2 de 36</translation>
    </message>
    <message>
        <source>House edge: %1% of the bet</source>
        <translation>Ventaja de la casa: %1 % de la apuesta</translation>
    </message>
    <message>
        <source>House edge: %1% of the bet, a roll</source>
        <translation>Ventaja de la casa: %1 % de la apuesta por tirada</translation>
    </message>
    <message>
        <source>The dice in force never decide it</source>
        <translation>Los dados en vigor no la deciden nunca</translation>
    </message>
    <message>
        <source>Decided after %1 rolls on average</source>
        <translation>Se decide tras %1 tiradas de media</translation>
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
        <translation>Próximo clic: declarar una apuesta ON. Un clic derecho lo termina</translation>
    </message>
    <message>
        <source>Next click: call a bet OFF. A right click ends this</source>
        <translation>Próximo clic: declarar una apuesta OFF. Un clic derecho lo termina</translation>
    </message>
    <message>
        <source>Next click: buy a Place bet. A right click ends this</source>
        <translation>Próximo clic: comprar una apuesta Place. Un clic derecho lo termina</translation>
    </message>
    <message>
        <source>Next click: remove a bet. A right click ends this</source>
        <translation>Próximo clic: retirar una apuesta. Un clic derecho lo termina</translation>
    </message>
    <message>
        <source>Next click: take a bet to move it. A right click ends this</source>
        <translation>Próximo clic: tomar una apuesta para moverla. Un clic derecho lo termina</translation>
    </message>
    <message>
        <source>Next click: put the bet down. A right click ends this</source>
        <translation>Próximo clic: dejar la apuesta. Un clic derecho lo termina</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), point stays %5.</source>
        <translation>Tirada %1: %2 (%3-%4), el punto sigue en %5.</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), the point is %2.</source>
        <translation>Tirada %1: %2 (%3-%4), el punto es %2.</translation>
    </message>
    <message>
        <source>point</source>
        <translation>punto</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), point made.</source>
        <translation>Tirada %1: %2 (%3-%4), punto hecho.</translation>
    </message>
    <message>
        <source>point made</source>
        <translation>punto hecho</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), seven-out.</source>
        <translation>Tirada %1: %2 (%3-%4), seven-out.</translation>
    </message>
    <message>
        <source>seven-out</source>
        <translation>seven-out</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), natural.</source>
        <translation>Tirada %1: %2 (%3-%4), natural.</translation>
    </message>
    <message>
        <source>natural</source>
        <translation>natural</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), craps.</source>
        <translation>Tirada %1: %2 (%3-%4), craps.</translation>
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
        <translation>DOS</translation>
    </message>
    <message>
        <source>THREE</source>
        <translation>TRES</translation>
    </message>
    <message>
        <source>FOUR</source>
        <translation>CUATRO</translation>
    </message>
    <message>
        <source>FIVE</source>
        <translation>CINCO</translation>
    </message>
    <message>
        <source>SIX</source>
        <translation>SEIS</translation>
    </message>
    <message>
        <source>SEVEN</source>
        <translation>SIETE</translation>
    </message>
    <message>
        <source>EIGHT</source>
        <translation>OCHO</translation>
    </message>
    <message>
        <source>NINE</source>
        <translation>NUEVE</translation>
    </message>
    <message>
        <source>TEN</source>
        <translation>DIEZ</translation>
    </message>
    <message>
        <source>ELEVEN</source>
        <translation>ONCE</translation>
    </message>
    <message>
        <source>TWELVE</source>
        <translation>DOCE</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>Hand %1</source>
        <translation>Mano %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 tirada</numerusform>
            <numerusform>%1 tiradas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 points made</source>
        <translation>
            <numerusform>%1 punto hecho</numerusform>
            <numerusform>%1 puntos hechos</numerusform>
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
        <translation>&amp;Jugar</translation>
    </message>
    <message>
        <source>&amp;Watch a system</source>
        <translation>&amp;Observar un sistema</translation>
    </message>
    <message>
        <source>&amp;Study results</source>
        <translation>&amp;Estudiar resultados</translation>
    </message>
    <message>
        <source>&amp;Float all</source>
        <translation>&amp;Soltar todas</translation>
    </message>
    <message>
        <source>&amp;Close all instruments</source>
        <translation>&amp;Cerrar todos los instrumentos</translation>
    </message>
    <message>
        <source>&amp;Key in bet amounts</source>
        <translation>Escri&amp;bir los importes de las apuestas</translation>
    </message>
    <message>
        <source>&amp;Buy a Place bet</source>
        <translation>Co&amp;mprar una apuesta Place</translation>
    </message>
    <message>
        <source>Call a bet &amp;ON</source>
        <translation>Declarar una apuesta O&amp;N</translation>
    </message>
    <message>
        <source>Call a bet O&amp;FF</source>
        <translation>Declarar una apuesta O&amp;FF</translation>
    </message>
    <message>
        <source>Call all bets O&amp;N</source>
        <translation>Declarar todas las apuestas &amp;ON</translation>
    </message>
    <message>
        <source>&amp;Call all bets OFF</source>
        <translation>&amp;Declarar todas las apuestas OFF</translation>
    </message>
    <message>
        <source>&amp;Take full odds</source>
        <translation>&amp;Tomar Odds completas</translation>
    </message>
    <message>
        <source>&amp;Lay full odds</source>
        <translation>&amp;Poner Odds completas</translation>
    </message>
    <message>
        <source>&amp;Remove a bet</source>
        <translation>Retirar &amp;una apuesta</translation>
    </message>
    <message>
        <source>&amp;Move a bet</source>
        <translation>Mo&amp;ver una apuesta</translation>
    </message>
    <message>
        <source>Remove &amp;all bets</source>
        <translation>Retirar todas las &amp;apuestas</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Partida</translation>
    </message>
    <message>
        <source>&amp;Players</source>
        <translation>&amp;Jugadores</translation>
    </message>
    <message>
        <source>&amp;Bets</source>
        <translation>&amp;Apuestas</translation>
    </message>
    <message>
        <source>&amp;Dice</source>
        <translation>&amp;Dados</translation>
    </message>
    <message>
        <source>A&amp;uto-Bet</source>
        <translation>A&amp;uto-Bet</translation>
    </message>
    <message>
        <source>Stat&amp;istics</source>
        <translation>&amp;Estadísticas</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Roll the dice</source>
        <translation>&amp;Tirar los dados</translation>
    </message>
    <message>
        <source>&amp;Pass the dice</source>
        <translation>&amp;Pasar los dados</translation>
    </message>
    <message>
        <source>Roll your &amp;own numbers</source>
        <translation>Tirar sus propios &amp;números</translation>
    </message>
    <message>
        <source>Start &amp;Turbo-Roll</source>
        <translation>&amp;Iniciar Turbo-Roll</translation>
    </message>
    <message>
        <source>Set Auto-Roll time &amp;delay ...</source>
        <translation>Pau&amp;sa de Auto-Roll ...</translation>
    </message>
    <message>
        <source>Set Auto-&amp;Stop ...</source>
        <translation>Parada a&amp;utomática ...</translation>
    </message>
    <message>
        <source>Open pro&amp;bability file ...</source>
        <translation>Abrir archivo de proba&amp;bilidades ...</translation>
    </message>
    <message>
        <source>Per&amp;centage dice</source>
        <translation>Dados de por&amp;centaje</translation>
    </message>
    <message>
        <source>Pla&amp;y a dice roll file ...</source>
        <translation>&amp;Reproducir archivo de tiradas ...</translation>
    </message>
    <message>
        <source>R&amp;ecord a dice roll file ...</source>
        <translation>&amp;Grabar archivo de tiradas ...</translation>
    </message>
    <message>
        <source>C&amp;lose the dice roll file</source>
        <translation>C&amp;errar el archivo de tiradas</translation>
    </message>
    <message>
        <source>Dice roll &amp;files</source>
        <translation>&amp;Archivos de tiradas</translation>
    </message>
    <message>
        <source>Percentage dice ed&amp;itor</source>
        <translation>E&amp;ditor de dados de porcentaje</translation>
    </message>
    <message>
        <source>Stop t&amp;he dice roll file</source>
        <translation>Detener el arc&amp;hivo de tiradas</translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation>&amp;Nueva ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Abrir ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Guardar &amp;como ...</translation>
    </message>
    <message>
        <source>&amp;Recent games</source>
        <translation>Partidas &amp;recientes</translation>
    </message>
    <message>
        <source>&amp;Files in use ...</source>
        <translation>Arc&amp;hivos en uso ...</translation>
    </message>
    <message>
        <source>So&amp;und</source>
        <translation>Son&amp;ido</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>Con&amp;figuración</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Keys and mouse</source>
        <translation>&amp;Teclas y ratón</translation>
    </message>
    <message>
        <source>&amp;About Tessaryn</source>
        <translation>&amp;Acerca de Tessaryn</translation>
    </message>
    <message>
        <source>&amp;Add ...</source>
        <translation>&amp;Añadir ...</translation>
    </message>
    <message>
        <source>&amp;Rename ...</source>
        <translation>Cambiar &amp;nombre ...</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Mover</translation>
    </message>
    <message>
        <source>R&amp;emove ...</source>
        <translation>&amp;Quitar ...</translation>
    </message>
    <message>
        <source>A&amp;TM ...</source>
        <translation>&amp;Cajero ...</translation>
    </message>
    <message>
        <source>Auto-&amp;Play ...</source>
        <translation>Auto-&amp;Play ...</translation>
    </message>
    <message>
        <source>&amp;Open script ...</source>
        <translation>A&amp;brir script ...</translation>
    </message>
    <message>
        <source>&amp;Active</source>
        <translation>&amp;Activo</translation>
    </message>
    <message>
        <source>&amp;Initialize</source>
        <translation>&amp;Inicializar</translation>
    </message>
    <message>
        <source>&amp;Stop auto-betting</source>
        <translation>&amp;Detener Auto-Bet</translation>
    </message>
    <message>
        <source>Assign a &amp;hot-key ...</source>
        <translation>Asi&amp;gnar una tecla ...</translation>
    </message>
    <message>
        <source>Auto-Bet &amp;workshop</source>
        <translation>&amp;Taller de Auto-Bet</translation>
    </message>
    <message>
        <source>Hot-&amp;keys</source>
        <translation>Teclas &amp;rápidas</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Resumen</translation>
    </message>
    <message>
        <source>&amp;Hands</source>
        <translation>&amp;Manos</translation>
    </message>
    <message>
        <source>Bet &amp;results</source>
        <translation>R&amp;esultados de apuestas</translation>
    </message>
    <message>
        <source>Bet &amp;trends</source>
        <translation>&amp;Tendencias de apuestas</translation>
    </message>
    <message>
        <source>R&amp;oll totals</source>
        <translation>T&amp;otales de tiradas</translation>
    </message>
    <message>
        <source>Roll &amp;frequencies</source>
        <translation>&amp;Frecuencias de tiradas</translation>
    </message>
    <message>
        <source>&amp;Bankroll graph</source>
        <translation>Gráfico de &amp;bankroll</translation>
    </message>
    <message>
        <source>&amp;CheckStacks</source>
        <translation>&amp;CheckStacks</translation>
    </message>
    <message>
        <source>Sessions &amp;Log</source>
        <translation>Registro de &amp;sesiones</translation>
    </message>
    <message>
        <source>&amp;Events Log</source>
        <translation>Registro de e&amp;ventos</translation>
    </message>
    <message>
        <source>L&amp;aboratory</source>
        <translation>&amp;Laboratorio</translation>
    </message>
    <message>
        <source>View %1</source>
        <translation>Vista %1</translation>
    </message>
    <message>
        <source>Bet &amp;amounts</source>
        <translation>&amp;Importes de las apuestas</translation>
    </message>
    <message>
        <source>&amp;Flash the bets</source>
        <translation>Parpadear &amp;las apuestas</translation>
    </message>
    <message>
        <source>&amp;Proposition bets</source>
        <translation>&amp;Proposiciones</translation>
    </message>
    <message>
        <source>&amp;Move, zoom and rotate</source>
        <translation>&amp;Mover, ampliar y girar</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>&amp;Ampliar</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>&amp;Rotate by 30 degrees</source>
        <translation>&amp;Girar 30 grados</translation>
    </message>
    <message>
        <source>&amp;Whole table</source>
        <translation>Mesa &amp;entera</translation>
    </message>
    <message>
        <source>&amp;Left end</source>
        <translation>Extremo i&amp;zquierdo</translation>
    </message>
    <message>
        <source>Ri&amp;ght end</source>
        <translation>Extremo &amp;derecho</translation>
    </message>
    <message>
        <source>R&amp;estore view</source>
        <translation>Res&amp;taurar vista</translation>
    </message>
    <message>
        <source>&amp;Save view</source>
        <translation>&amp;Conservar vista</translation>
    </message>
    <message>
        <source>Arra&amp;nge</source>
        <translation>Di&amp;sposición</translation>
    </message>
    <message>
        <source>Lang&amp;uage</source>
        <translation>Idi&amp;oma</translation>
    </message>
    <message>
        <source>&amp;Undo bet</source>
        <translation>Des&amp;hacer apuesta</translation>
    </message>
    <message>
        <source>R&amp;edo bet</source>
        <translation>Reha&amp;cer apuesta</translation>
    </message>
    <message>
        <source>Re&amp;peat bets</source>
        <translation>&amp;Repetir apuestas</translation>
    </message>
    <message>
        <source>Full o&amp;dds</source>
        <translation>Odd&amp;s completas</translation>
    </message>
    <message>
        <source>&amp;Help for this screen</source>
        <translation>Ay&amp;uda de esta pantalla</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>&amp;Search the help</source>
        <translation>&amp;Buscar en la ayuda</translation>
    </message>
    <message>
        <source>&amp;Settle each roll on one sheet</source>
        <translation>&amp;Liquidar cada tirada en una hoja</translation>
    </message>
    <message>
        <source>L&amp;uck</source>
        <translation>S&amp;uerte</translation>
    </message>
</context>
<context>
    <name>Core</name>
    <message>
        <source>Auto select</source>
        <translation>Elección automática</translation>
    </message>
    <message>
        <source>X Flat - No Push</source>
        <translation>X simple - sin push</translation>
    </message>
    <message>
        <source>X Flat w/ Minor Push</source>
        <translation>X simple con push menor</translation>
    </message>
    <message>
        <source>X Flat w/ Color Push</source>
        <translation>X simple con push de color</translation>
    </message>
    <message>
        <source>X Flat - Single Odds</source>
        <translation>X simple - Odds simples</translation>
    </message>
    <message>
        <source>Flat - Single Odds X</source>
        <translation>Simple - Odds simples X</translation>
    </message>
    <message>
        <source>Rounded normally</source>
        <translation>Redondeo normal</translation>
    </message>
    <message>
        <source>Rounded down</source>
        <translation>Redondeo hacia abajo</translation>
    </message>
    <message>
        <source>Rounded up</source>
        <translation>Redondeo hacia arriba</translation>
    </message>
    <message>
        <source> Charge winning Buy bets only</source>
        <translation> Cobrar solo a las apuestas Buy ganadoras</translation>
    </message>
    <message>
        <source> Charge all Buy bets</source>
        <translation> Cobrar a todas las apuestas Buy</translation>
    </message>
    <message>
        <source> Charge winning Lay bets only</source>
        <translation> Cobrar solo a las apuestas Lay ganadoras</translation>
    </message>
    <message>
        <source> Charge all Lay bets</source>
        <translation> Cobrar a todas las apuestas Lay</translation>
    </message>
    <message>
        <source>No bets required to shoot</source>
        <translation>No hace falta apuesta para tirar</translation>
    </message>
    <message>
        <source>Line bet required to shoot</source>
        <translation>Hace falta apuesta de línea para tirar</translation>
    </message>
    <message>
        <source>Any bet required to shoot</source>
        <translation>Hace falta alguna apuesta para tirar</translation>
    </message>
    <message>
        <source> Actions not allowed</source>
        <translation> Acciones no permitidas</translation>
    </message>
    <message>
        <source> Betting limits reached</source>
        <translation> Límites de apuesta alcanzados</translation>
    </message>
    <message>
        <source> Charges and/or change</source>
        <translation> Cargos y cambio</translation>
    </message>
    <message>
        <source> Auto-bet messages normal play</source>
        <translation> Mensajes de Auto-Bet en juego normal</translation>
    </message>
    <message>
        <source> Auto-bet messages turbo-roll</source>
        <translation> Mensajes de Auto-Bet en Turbo-Roll</translation>
    </message>
    <message>
        <source>Don&apos;t show any info</source>
        <translation>No mostrar nada</translation>
    </message>
    <message>
        <source>Show amounts only</source>
        <translation>Mostrar solo importes</translation>
    </message>
    <message>
        <source>Show names only</source>
        <translation>Mostrar solo nombres</translation>
    </message>
    <message>
        <source>Show names and amounts only</source>
        <translation>Mostrar solo nombres e importes</translation>
    </message>
    <message>
        <source>Show all info</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source> Theoretical house vig</source>
        <translation> Ventaja teórica de la casa</translation>
    </message>
    <message>
        <source> Total comp action</source>
        <translation> Acción total para comps</translation>
    </message>
    <message>
        <source> Average comp action and time</source>
        <translation> Acción media y tiempo</translation>
    </message>
    <message>
        <source> Seed normally</source>
        <translation> Semilla normal</translation>
    </message>
    <message>
        <source> User seed</source>
        <translation> Semilla del usuario</translation>
    </message>
    <message>
        <source> Manual</source>
        <translation> Manual</translation>
    </message>
    <message>
        <source> Auto w/ minor correction</source>
        <translation> Auto con corrección menor</translation>
    </message>
    <message>
        <source> Auto w/ color correction</source>
        <translation> Auto con corrección de color</translation>
    </message>
    <message>
        <source> Thrown</source>
        <translation> Lanzados</translation>
    </message>
    <message>
        <source> Without motion</source>
        <translation> Sin movimiento</translation>
    </message>
    <message>
        <source> Thrown quickly</source>
        <translation> Lanzados deprisa</translation>
    </message>
    <message>
        <source> Carry the bankroll forward</source>
        <translation> Conservar el bankroll</translation>
    </message>
    <message>
        <source> Begin with this amount</source>
        <translation> Empezar con este importe</translation>
    </message>
    <message>
        <source> Ask for the amount</source>
        <translation> Preguntar el importe</translation>
    </message>
    <message>
        <source>0 by the change, 1 up, 2 down</source>
        <translation>0 según el cambio, 1 arriba, 2 abajo</translation>
    </message>
    <message>
        <source>minimum of bets 1 to 51</source>
        <translation>mínimo de las apuestas 1 a 51</translation>
    </message>
    <message>
        <source>minimum of bets 52 to 93</source>
        <translation>mínimo de las apuestas 52 a 93</translation>
    </message>
    <message>
        <source>table maximum</source>
        <translation>máximo de la mesa</translation>
    </message>
    <message>
        <source>most a proposition may pay</source>
        <translation>lo más que paga una proposición</translation>
    </message>
    <message>
        <source>ceiling of an odds bet</source>
        <translation>tope de una apuesta Odds</translation>
    </message>
    <message>
        <source>ceiling of the Fire bet</source>
        <translation>tope de la apuesta Fire</translation>
    </message>
    <message>
        <source>odds multiple on 4 and 10</source>
        <translation>múltiplo de Odds en 4 y 10</translation>
    </message>
    <message>
        <source>odds multiple on 5 and 9</source>
        <translation>múltiplo de Odds en 5 y 9</translation>
    </message>
    <message>
        <source>odds multiple on 6 and 8</source>
        <translation>múltiplo de Odds en 6 y 8</translation>
    </message>
    <message>
        <source>0 auto select, 1 to 5 the method</source>
        <translation>0 elección automática, 1 a 5 el método</translation>
    </message>
    <message>
        <source>12 or 2, barred on the don&apos;t side</source>
        <translation>12 o 2, barrado en el lado Don&apos;t</translation>
    </message>
    <message>
        <source>Put bets</source>
        <translation>apuestas Put</translation>
    </message>
    <message>
        <source>0 none, 1 line bet, 2 any bet needed to shoot</source>
        <translation>0 ninguna, 1 apuesta de línea, 2 alguna apuesta para tirar</translation>
    </message>
    <message>
        <source>Big 6 and Big 8</source>
        <translation>Big 6 y Big 8</translation>
    </message>
    <message>
        <source>Midway bet</source>
        <translation>apuesta Midway</translation>
    </message>
    <message>
        <source>special propositions, bets 84 to 89</source>
        <translation>proposiciones especiales, apuestas 84 a 89</translation>
    </message>
    <message>
        <source>Fire bet</source>
        <translation>apuesta Fire</translation>
    </message>
    <message>
        <source>contract bets go back at a new session</source>
        <translation>las apuestas bajo contrato se devuelven en una sesión nueva</translation>
    </message>
    <message>
        <source>what the Field pays; Own once a row of it is another</source>
        <translation>lo que paga el Field; Own en cuanto una fila es otra</translation>
    </message>
    <message>
        <source>a fraction, or with % a percentage</source>
        <translation>una fracción, o con % un porcentaje</translation>
    </message>
    <message>
        <source>0 normally, 1 down, 2 up</source>
        <translation>0 normal, 1 abajo, 2 arriba</translation>
    </message>
    <message>
        <source>charge all Buy bets</source>
        <translation>cobrar a todas las apuestas Buy</translation>
    </message>
    <message>
        <source>charge all Lay bets</source>
        <translation>cobrar a todas las apuestas Lay</translation>
    </message>
    <message>
        <source>rolls per hour</source>
        <translation>tiradas por hora</translation>
    </message>
    <message>
        <source>0 fastest to 11; 12 Auto-Roll</source>
        <translation>0 lo más rápido a 11; 12 Auto-Roll</translation>
    </message>
    <message>
        <source>seconds between Auto-Rolls</source>
        <translation>segundos entre Auto-Rolls</translation>
    </message>
    <message>
        <source>rolls, 0 never</source>
        <translation>tiradas, 0 nunca</translation>
    </message>
    <message>
        <source>offered to a new player</source>
        <translation>se ofrece a un jugador nuevo</translation>
    </message>
    <message>
        <source>the ATM works</source>
        <translation>el cajero funciona</translation>
    </message>
    <message>
        <source>amount of an ATM action that names none</source>
        <translation>importe del cajero cuando no se dice otro</translation>
    </message>
    <message>
        <source>bits 1 refusals, 2 bankroll, 4 adjustments, 8 and 16 scripts</source>
        <translation>bits 1 rechazos, 2 bankroll, 4 ajustes, 8 y 16 scripts</translation>
    </message>
    <message>
        <source>amounts below a dollar are written in cents</source>
        <translation>los importes de menos de un dólar se escriben en centavos</translation>
    </message>
    <message>
        <source>checks of a bet are changed for the fewest; else they stay as they were bet</source>
        <translation>las fichas de una apuesta se cambian por las menos posibles; si no, quedan como se apostaron</translation>
    </message>
    <message>
        <source>the pointer goes to the default button of a box</source>
        <translation>el puntero va al botón predeterminado de un cuadro</translation>
    </message>
    <message>
        <source>printing in colour</source>
        <translation>imprimir en color</translation>
    </message>
    <message>
        <source>how much the pointer tells</source>
        <translation>cuánto dice el puntero</translation>
    </message>
    <message>
        <source>points: 9 small, 11 the desktop&apos;s own size, 13 large</source>
        <translation>puntos: 9 pequeño, 11 el del escritorio, 13 grande</translation>
    </message>
    <message>
        <source>points</source>
        <translation>puntos</translation>
    </message>
    <message>
        <source>how the dice move</source>
        <translation>cómo se mueven los dados</translation>
    </message>
    <message>
        <source>sound set, 0 none</source>
        <translation>juego de sonidos, 0 ninguno</translation>
    </message>
    <message>
        <source>sounds of scripts</source>
        <translation>sonidos de los scripts</translation>
    </message>
    <message>
        <source>silence</source>
        <translation>silencio</translation>
    </message>
    <message>
        <source>advantage: zeros are decisions</source>
        <translation>ventaja: los nulos son decisiones</translation>
    </message>
    <message>
        <source>0 theoretical vig, 1 action, 2 action and time</source>
        <translation>0 ventaja teórica, 1 acción, 2 acción y tiempo</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>por ciento</translation>
    </message>
    <message>
        <source>comps ignore percentage dice</source>
        <translation>los comps no miran los dados de porcentaje</translation>
    </message>
    <message>
        <source>generator number less 1</source>
        <translation>número del generador menos 1</translation>
    </message>
    <message>
        <source>the user is asked for seeds</source>
        <translation>se pregunta la semilla al usuario</translation>
    </message>
    <message>
        <source>a new session seeds again</source>
        <translation>una sesión nueva siembra de nuevo</translation>
    </message>
    <message>
        <source>the Events Log&apos;s master switch</source>
        <translation>interruptor general del registro de eventos</translation>
    </message>
    <message>
        <source>Events Log class</source>
        <translation>clase del registro de eventos</translation>
    </message>
    <message>
        <source>a new session clears the log</source>
        <translation>una sesión nueva vacía el registro</translation>
    </message>
    <message>
        <source>the view follows the rolls</source>
        <translation>la vista sigue a las tiradas</translation>
    </message>
    <message>
        <source>what becomes of a winner, 0 manual</source>
        <translation>qué se hace con una ganadora, 0 manual</translation>
    </message>
    <message>
        <source>what becomes of a loser, 0 manual</source>
        <translation>qué se hace con una perdedora, 0 manual</translation>
    </message>
    <message>
        <source>amounts that pay whole</source>
        <translation>importes que pagan exacto</translation>
    </message>
    <message>
        <source>full odds on Pass Line and Come</source>
        <translation>Odds completas en Pass Line y Come</translation>
    </message>
    <message>
        <source>full odds on Don&apos;t Pass and Don&apos;t Come</source>
        <translation>Odds completas en Don&apos;t Pass y Don&apos;t Come</translation>
    </message>
    <message>
        <source>Place and Buy on a covered number come down</source>
        <translation>Place y Buy en un número cubierto se retiran</translation>
    </message>
    <message>
        <source>the seat won&apos;t shoot</source>
        <translation>el puesto no tira</translation>
    </message>
    <message>
        <source>bets without money</source>
        <translation>apuestas sin dinero</translation>
    </message>
    <message>
        <source>new session: 0 carry, 1 amount, 2 ask</source>
        <translation>sesión nueva: 0 conservar, 1 importe, 2 preguntar</translation>
    </message>
    <message>
        <source>new session&apos;s bankroll</source>
        <translation>bankroll de la sesión nueva</translation>
    </message>
    <message>
        <source>check denominations, ascending</source>
        <translation>valores de las fichas, ascendentes</translation>
    </message>
    <message>
        <source>what a bet pays, as in 7 to 5</source>
        <translation>lo que paga una apuesta, como 7 to 5</translation>
    </message>
    <message>
        <source>Field by dice</source>
        <translation>Field por dados</translation>
    </message>
    <message>
        <source>7 Point 7</source>
        <translation>7 Point 7</translation>
    </message>
    <message>
        <source>Midway by dice</source>
        <translation>Midway por dados</translation>
    </message>
    <message>
        <source>by points made + 1</source>
        <translation>por puntos hechos + 1</translation>
    </message>
    <message>
        <source>by line wins + 1</source>
        <translation>por victorias de línea + 1</translation>
    </message>
    <message>
        <source>by different points made</source>
        <translation>por puntos distintos hechos</translation>
    </message>
    <message>
        <source>works on the come-out; seat 0 the house</source>
        <translation>trabaja en el come-out; puesto 0 la casa</translation>
    </message>
    <message>
        <source>counts towards comps</source>
        <translation>cuenta para los comps</translation>
    </message>
    <message>
        <source>0 plus, 1 minus, 2 times, 3 divided by</source>
        <translation>0 más, 1 menos, 2 por, 3 dividido por</translation>
    </message>
    <message>
        <source>the value of the slot</source>
        <translation>el valor de la casilla</translation>
    </message>
    <message>
        <source>0 dollars, 1 percent, 2 to 6 units of a check</source>
        <translation>0 dólares, 1 por ciento, 2 a 6 unidades de una ficha</translation>
    </message>
    <message>
        <source> Take Bet and Winnings</source>
        <translation> Tomar apuesta y ganancias</translation>
    </message>
    <message>
        <source> Same Bet/Take Winnings</source>
        <translation> Misma apuesta/tomar ganancias</translation>
    </message>
    <message>
        <source> Press 1 Unit</source>
        <translation> Subir 1 unidad</translation>
    </message>
    <message>
        <source> Press Double</source>
        <translation> Doblar</translation>
    </message>
    <message>
        <source> Parlay</source>
        <translation> Parlay</translation>
    </message>
    <message>
        <source> Same Bet</source>
        <translation> Misma apuesta</translation>
    </message>
    <message>
        <source> Bet</source>
        <translation> Apuesta</translation>
    </message>
    <message>
        <source> No Bet/Take Remainder (if any)</source>
        <translation> Sin apuesta/tomar el resto (si lo hay)</translation>
    </message>
    <message>
        <source> Bet Remainder (if any)</source>
        <translation> Apostar el resto (si lo hay)</translation>
    </message>
    <message>
        <source> Same Bet Plus 1 Unit</source>
        <translation> Misma apuesta más 1 unidad</translation>
    </message>
    <message>
        <source> Double Bet</source>
        <translation> Doblar la apuesta</translation>
    </message>
    <message>
        <source> Show as percentage</source>
        <translation> Mostrar como porcentaje</translation>
    </message>
    <message>
        <source> Show as +/- from true %</source>
        <translation> Mostrar como +/- del % verdadero</translation>
    </message>
    <message>
        <source> Show as # rolls out of:</source>
        <translation> Mostrar como tiradas de cada:</translation>
    </message>
    <message>
        <source> Show as +/- from true rolls out of:</source>
        <translation> Mostrar como +/- de las tiradas verdaderas de cada:</translation>
    </message>
    <message>
        <source> About the 1-6 axis</source>
        <translation> Sobre el eje 1-6</translation>
    </message>
    <message>
        <source> About the 2-5 axis</source>
        <translation> Sobre el eje 2-5</translation>
    </message>
    <message>
        <source> About the 3-4 axis</source>
        <translation> Sobre el eje 3-4</translation>
    </message>
    <message>
        <source>Fair dice</source>
        <translation>Dados justos</translation>
    </message>
    <message>
        <source>Shooter on the 1-6 axis, 10%</source>
        <translation>Tirador en el eje 1-6, 10 %</translation>
    </message>
    <message>
        <source>Loaded dice, 20% sixes</source>
        <translation>Dados cargados, 20 % de seises</translation>
    </message>
    <message>
        <source>18% sevens</source>
        <translation>18 % de sietes</translation>
    </message>
    <message>
        <source>15% sevens</source>
        <translation>15 % de sietes</translation>
    </message>
    <message>
        <source>Free Form Dice</source>
        <translation>Dados libres</translation>
    </message>
    <message>
        <source>Percentage Dice</source>
        <translation>Dados de porcentaje</translation>
    </message>
    <message>
        <source>&amp;11 basic numbers</source>
        <translation>&amp;11 números básicos</translation>
    </message>
    <message>
        <source>&amp;36 combos (triangle)</source>
        <translation>&amp;36 combinaciones (triángulo)</translation>
    </message>
    <message>
        <source>3&amp;6 combos (box)</source>
        <translation>3&amp;6 combinaciones (cuadro)</translation>
    </message>
    <message>
        <source>&amp;Individual dice faces</source>
        <translation>&amp;Caras una a una</translation>
    </message>
    <message>
        <source>Set 1st checkstack to #</source>
        <translation>Poner el 1.er CheckStack al n.º</translation>
    </message>
    <message>
        <source>Set 2nd checkstack to #</source>
        <translation>Poner el 2.º CheckStack al n.º</translation>
    </message>
    <message>
        <source>Set 3rd checkstack to #</source>
        <translation>Poner el 3.er CheckStack al n.º</translation>
    </message>
    <message>
        <source>Set 4th checkstack to #</source>
        <translation>Poner el 4.º CheckStack al n.º</translation>
    </message>
    <message>
        <source># Rolls</source>
        <translation>N.º de tiradas</translation>
    </message>
    <message>
        <source># Bets Decided</source>
        <translation>N.º de apuestas decididas</translation>
    </message>
    <message>
        <source># Bets Won</source>
        <translation>N.º de apuestas ganadas</translation>
    </message>
    <message>
        <source># Bets Lost</source>
        <translation>N.º de apuestas perdidas</translation>
    </message>
    <message>
        <source># Bets Won/Lost (Net)</source>
        <translation>N.º ganado/perdido (neto)</translation>
    </message>
    <message>
        <source>$ Bets Decided (Handle)</source>
        <translation>$ decididos (volumen)</translation>
    </message>
    <message>
        <source>$ Bets Won</source>
        <translation>$ ganados</translation>
    </message>
    <message>
        <source>$ Bets Lost</source>
        <translation>$ perdidos</translation>
    </message>
    <message>
        <source>$ Bets Won/Lost (Net)</source>
        <translation>$ ganado/perdido (neto)</translation>
    </message>
    <message>
        <source>% Won or Lost (HA)</source>
        <translation>% ganado o perdido (HA)</translation>
    </message>
    <message>
        <source>Invested bankroll</source>
        <translation>Bankroll invertido</translation>
    </message>
    <message>
        <source>Ending bankroll</source>
        <translation>Bankroll final</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Suma</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Moda</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Máx.</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Mín.</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Rango</translation>
    </message>
    <message>
        <source>Variance</source>
        <translation>Varianza</translation>
    </message>
    <message>
        <source>Std Dev</source>
        <translation>Desv. est.</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Asimetría</translation>
    </message>
    <message>
        <source>Kurtosis</source>
        <translation>Curtosis</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>Manos</translation>
    </message>
    <message>
        <source>Bet Results</source>
        <translation>Resultados de apuestas</translation>
    </message>
    <message>
        <source>Bet Trends</source>
        <translation>Tendencias de apuestas</translation>
    </message>
    <message>
        <source>Roll Totals</source>
        <translation>Totales de tiradas</translation>
    </message>
    <message>
        <source>Roll Frequencies</source>
        <translation>Frecuencias de tiradas</translation>
    </message>
    <message>
        <source>Current hand</source>
        <translation>Mano actual</translation>
    </message>
    <message>
        <source>Last hand</source>
        <translation>Última mano</translation>
    </message>
    <message>
        <source>Current session</source>
        <translation>Sesión actual</translation>
    </message>
    <message>
        <source>Last session</source>
        <translation>Última sesión</translation>
    </message>
    <message>
        <source>All sessions</source>
        <translation>Todas las sesiones</translation>
    </message>
    <message>
        <source>No bets selected</source>
        <translation>Ninguna apuesta elegida</translation>
    </message>
    <message>
        <source>Resolved</source>
        <translation>Resueltas</translation>
    </message>
    <message>
        <source>Tendered</source>
        <translation>Puestas</translation>
    </message>
    <message>
        <source>Average $</source>
        <translation>$ medio</translation>
    </message>
    <message>
        <source>Avg # / hour</source>
        <translation>N.º medio / hora</translation>
    </message>
    <message>
        <source>Avg $ / hour</source>
        <translation>$ medio / hora</translation>
    </message>
    <message>
        <source>Total #</source>
        <translation>N.º total</translation>
    </message>
    <message>
        <source>Total $</source>
        <translation>$ total</translation>
    </message>
    <message>
        <source>High $</source>
        <translation>$ máximo</translation>
    </message>
    <message>
        <source>Low $</source>
        <translation>$ mínimo</translation>
    </message>
    <message>
        <source>Last $</source>
        <translation>Último $</translation>
    </message>
    <message>
        <source># rolls since last</source>
        <translation>Tiradas desde</translation>
    </message>
    <message>
        <source>Last roll #</source>
        <translation>Última tirada n.º</translation>
    </message>
    <message>
        <source>Last roll $</source>
        <translation>Última tirada $</translation>
    </message>
    <message>
        <source>Current #</source>
        <translation>N.º actual</translation>
    </message>
    <message>
        <source>Current $</source>
        <translation>$ actual</translation>
    </message>
    <message>
        <source>Prior roll #</source>
        <translation>Tirada anterior n.º</translation>
    </message>
    <message>
        <source>Prior roll $</source>
        <translation>Tirada anterior $</translation>
    </message>
    <message>
        <source>Wagers #</source>
        <translation>Apuestas n.º</translation>
    </message>
    <message>
        <source>Wagers $</source>
        <translation>Apuestas $</translation>
    </message>
    <message>
        <source>Wins #</source>
        <translation>Ganadas n.º</translation>
    </message>
    <message>
        <source>Losses #</source>
        <translation>Perdidas n.º</translation>
    </message>
    <message>
        <source>Net $</source>
        <translation>Neto $</translation>
    </message>
    <message>
        <source>Net %</source>
        <translation>Neto %</translation>
    </message>
    <message>
        <source>Wagers</source>
        <translation>Apuestas</translation>
    </message>
    <message>
        <source>Wins</source>
        <translation>Ganancias</translation>
    </message>
    <message>
        <source>Losses</source>
        <translation>Pérdidas</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Neto</translation>
    </message>
    <message>
        <source>Expected value $</source>
        <translation>Valor esperado $</translation>
    </message>
    <message>
        <source>in a row</source>
        <translation>seguidas</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Puntos</translation>
    </message>
    <message>
        <source>Naturals</source>
        <translation>Naturals</translation>
    </message>
    <message>
        <source>c/o rolls</source>
        <translation>tiradas c/o</translation>
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
        <translation>Total de tiradas</translation>
    </message>
    <message>
        <source>Total hands</source>
        <translation>Total de manos</translation>
    </message>
    <message>
        <source>Most rolls in a hand</source>
        <translation>Más tiradas en una mano</translation>
    </message>
    <message>
        <source>Most c/o rolls in a hand</source>
        <translation>Más tiradas c/o en una mano</translation>
    </message>
    <message>
        <source>Most passes in a hand</source>
        <translation>Más passes en una mano</translation>
    </message>
    <message>
        <source>Most misses in a hand</source>
        <translation>Más misses en una mano</translation>
    </message>
    <message>
        <source>Avg rolls per hand</source>
        <translation>Media de tiradas por mano</translation>
    </message>
    <message>
        <source>Avg c/o rolls per hand</source>
        <translation>Media de tiradas c/o por mano</translation>
    </message>
    <message>
        <source>Avg passes per hand</source>
        <translation>Media de passes por mano</translation>
    </message>
    <message>
        <source>Avg misses per hand</source>
        <translation>Media de misses por mano</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valor</translation>
    </message>
    <message>
        <source>Total session rolls:</source>
        <translation>Total de tiradas de la sesión:</translation>
    </message>
    <message>
        <source>Total rolls this selection:</source>
        <translation>Total de tiradas de esta selección:</translation>
    </message>
    <message>
        <source># rolls since last rolled:</source>
        <translation>Tiradas desde la última vez:</translation>
    </message>
    <message>
        <source>Actual % rolled:</source>
        <translation>% salido de verdad:</translation>
    </message>
    <message>
        <source>Skewed probable %:</source>
        <translation>% probable sesgado:</translation>
    </message>
    <message>
        <source>True probable %:</source>
        <translation>% probable verdadero:</translation>
    </message>
    <message>
        <source>Average # of rolls to achieve:</source>
        <translation>Tiradas de media hasta lograrlo:</translation>
    </message>
    <message>
        <source>Rolls to come again, and how often</source>
        <translation>Tiradas hasta repetirse, y cuántas veces</translation>
    </message>
    <message>
        <source>Number %1</source>
        <translation>Número %1</translation>
    </message>
    <message>
        <source>Numbers %1</source>
        <translation>Números %1</translation>
    </message>
    <message>
        <source>Any %1</source>
        <translation>Cualquier %1</translation>
    </message>
    <message>
        <source>Hard %1</source>
        <translation>Hard %1</translation>
    </message>
    <message>
        <source>Die %1, face %2</source>
        <translation>Dado %1, cara %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>language of the window</source>
        <translation>idioma de la ventana</translation>
    </message>
    <message>
        <source>As at first</source>
        <translation>Como al principio</translation>
    </message>
    <message>
        <source>The table as it is when the program is started for the first time.</source>
        <translation>La mesa tal como es al iniciar el programa por primera vez.</translation>
    </message>
    <message>
        <source>3-4-5x odds, $10 table</source>
        <translation>Odds 3-4-5x, mesa de $10</translation>
    </message>
    <message>
        <source>The usual table of a large house: three times odds on 4 and 10, four on 5 and 9, five on 6 and 8.</source>
        <translation>La mesa habitual de una casa grande: Odds triples en 4 y 10, cuádruples en 5 y 9, quíntuples en 6 y 8.</translation>
    </message>
    <message>
        <source>3-4-5x odds, $25 table</source>
        <translation>Odds 3-4-5x, mesa de $25</translation>
    </message>
    <message>
        <source>The same in the evening: a higher minimum, propositions from $5.</source>
        <translation>La misma por la noche: mínimo más alto, proposiciones desde $5.</translation>
    </message>
    <message>
        <source>Double odds, $5 table</source>
        <translation>Odds dobles, mesa de $5</translation>
    </message>
    <message>
        <source>A small house with double odds and every side bet.</source>
        <translation>Una casa pequeña con Odds dobles y todas las apuestas extra.</translation>
    </message>
    <message>
        <source>Single odds, bar 2, $5 table</source>
        <translation>Odds simples, barra 2, mesa de $5</translation>
    </message>
    <message>
        <source>An old house: single odds, two aces barred, no Put bets.</source>
        <translation>Una casa antigua: Odds simples, dos ases barrados, sin apuestas Put.</translation>
    </message>
    <message>
        <source>10x odds, $10 table</source>
        <translation>Odds 10x, mesa de $10</translation>
    </message>
    <message>
        <source>Ten times odds on every point, vig only when Buy and Lay bets win.</source>
        <translation>Odds de diez veces en cada punto, vig solo cuando ganan Buy y Lay.</translation>
    </message>
    <message>
        <source>20x odds, $5 table</source>
        <translation>Odds 20x, mesa de $5</translation>
    </message>
    <message>
        <source>Twenty times odds on every point, a low minimum.</source>
        <translation>Odds de veinte veces en cada punto, un mínimo bajo.</translation>
    </message>
    <message>
        <source>100x odds, $5 table</source>
        <translation>Odds 100x, mesa de $5</translation>
    </message>
    <message>
        <source>A hundred times odds on every point: what the house keeps is least here.</source>
        <translation>Odds de cien veces en cada punto: aquí la casa se queda lo menos posible.</translation>
    </message>
    <message>
        <source>At home, from a quarter</source>
        <translation>En casa, desde un cuarto</translation>
    </message>
    <message>
        <source>Checks of 25 cents to $25, bets from a quarter to $50.</source>
        <translation>Fichas de 25 centavos a $25, apuestas de 25 centavos a $50.</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>sin título</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;All files (*)</source>
        <translation>Valores separados por comas (*.csv);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation>Exportar imagen</translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;All files (*)</source>
        <translation>Imágenes PNG (*.png);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>SVG drawings (*.svg);;All files (*)</source>
        <translation>Dibujos SVG (*.svg);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Guardar como PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf);;All files (*)</source>
        <translation>Archivos PDF (*.pdf);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Open Events Log</source>
        <translation>Abrir registro de eventos</translation>
    </message>
    <message>
        <source>Events log file (*.txt);;All files (*)</source>
        <translation>Registro de eventos (*.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save Events Log As</source>
        <translation>Guardar el registro de eventos como</translation>
    </message>
    <message>
        <source>Open Session File</source>
        <translation>Abrir archivo de sesión</translation>
    </message>
    <message>
        <source>Session files (*.crp);;All files (*)</source>
        <translation>Archivos de sesión (*.crp);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save Session File As</source>
        <translation>Guardar el archivo de sesión como</translation>
    </message>
    <message>
        <source>Open Auto-Bet File</source>
        <translation>Abrir archivo de Auto-Bet</translation>
    </message>
    <message>
        <source>Auto-bet files (*.bet);;All files (*)</source>
        <translation>Archivos de Auto-Bet (*.bet);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save Auto-Bet File As</source>
        <translation>Guardar el archivo de Auto-Bet como</translation>
    </message>
    <message>
        <source>Select Auto-Bet File for Hot-Key</source>
        <translation>Elegir el archivo de Auto-Bet de la tecla</translation>
    </message>
    <message>
        <source>Open Probability File</source>
        <translation>Abrir archivo de probabilidades</translation>
    </message>
    <message>
        <source>Probability file (*.prb);;All files (*)</source>
        <translation>Archivo de probabilidades (*.prb);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save Probability File As</source>
        <translation>Guardar el archivo de probabilidades como</translation>
    </message>
    <message>
        <source>Open Dice Roll File  or  Enter Name For A New File</source>
        <translation>Abrir archivo de tiradas  o  dar nombre a uno nuevo</translation>
    </message>
    <message>
        <source>Dice roll file (*.rol);;All files (*)</source>
        <translation>Archivo de tiradas (*.rol);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Copy To Dice Roll File</source>
        <translation>Copiar a un archivo de tiradas</translation>
    </message>
    <message>
        <source>Copy To Roll File</source>
        <translation>Copiar a un archivo de tiradas</translation>
    </message>
    <message>
        <source>Copy Dice Rolls To Text File</source>
        <translation>Copiar las tiradas a un archivo de texto</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>Archivos de texto (*.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Copy To Text File</source>
        <translation>Copiar a un archivo de texto</translation>
    </message>
    <message>
        <source>Paste From Dice Roll File</source>
        <translation>Pegar de un archivo de tiradas</translation>
    </message>
    <message>
        <source>Paste From Ascii/Text File</source>
        <translation>Pegar de un archivo ASCII/de texto</translation>
    </message>
    <message>
        <source>RNG Seed</source>
        <translation>Semilla del generador</translation>
    </message>
    <message>
        <source>Auto-bet files (*.bet);;Auto-bet &amp; text files (*.bet *.txt);;Text files (*.txt);;All files (*.*)</source>
        <translation>Archivos de Auto-Bet (*.bet);;Archivos de Auto-Bet y de texto (*.bet *.txt);;Archivos de texto (*.txt);;Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>Open House Rules</source>
        <translation>Abrir reglas de la casa</translation>
    </message>
    <message>
        <source>House rules (*.txt);;All files (*)</source>
        <translation>Reglas de la casa (*.txt);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save House Rules As</source>
        <translation>Guardar las reglas de la casa como</translation>
    </message>
    <message>
        <source>Save Laboratory Report As</source>
        <translation>Guardar el informe del laboratorio como</translation>
    </message>
    <message>
        <source>Web pages (*.html);;All files (*)</source>
        <translation>Páginas web (*.html);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Dice Roll File</source>
        <translation>Archivo de tiradas</translation>
    </message>
    <message>
        <source>Record Dice Rolls During Game Play</source>
        <translation>Grabar las tiradas durante la partida</translation>
    </message>
    <message>
        <source>Playback Dice Rolls During Game Play</source>
        <translation>Reproducir las tiradas durante la partida</translation>
    </message>
    <message>
        <source>Record Dice Rolls</source>
        <translation>Grabar tiradas</translation>
    </message>
    <message>
        <source>Print Dice Roll File</source>
        <translation>Imprimir archivo de tiradas</translation>
    </message>
    <message>
        <source>Print Dice Rolls</source>
        <translation>Imprimir tiradas</translation>
    </message>
    <message>
        <source>Open Sessions Log</source>
        <translation>Abrir registro de sesiones</translation>
    </message>
    <message>
        <source>Sessions logs (*.slg);;All files (*)</source>
        <translation>Registros de sesiones (*.slg);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save Sessions Log As</source>
        <translation>Guardar el registro de sesiones como</translation>
    </message>
    <message>
        <source>Open Laboratory Experiment</source>
        <translation>Abrir experimento del laboratorio</translation>
    </message>
    <message>
        <source>Laboratory experiments (*.lab);;All files (*)</source>
        <translation>Experimentos del laboratorio (*.lab);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save Laboratory Experiment As</source>
        <translation>Guardar el experimento del laboratorio como</translation>
    </message>
    <message>
        <source>Save Sessions As</source>
        <translation>Guardar las sesiones como</translation>
    </message>
    <message>
        <source>Sessions Logs (*.slg);;All files (*)</source>
        <translation>Registros de sesiones (*.slg);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save Results As</source>
        <translation>Guardar los resultados como</translation>
    </message>
    <message>
        <source>JSON (*.json);;All files (*)</source>
        <translation>JSON (*.json);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>Click a + to join</source>
        <translation>Haga clic en un + para entrar</translation>
    </message>
    <message>
        <source>Choose a check, click PASS LINE</source>
        <translation>Elija una ficha, clic en PASS LINE</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Tire</translation>
    </message>
</context>
<context>
    <name>HelpFigures</name>
    <message>
        <source>as odds on the point</source>
        <translation>como las Odds sobre el punto</translation>
    </message>
    <message>
        <source>%1, less %2% vig</source>
        <translation>%1, menos %2 % de vig</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Apuesta</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Paga</translation>
    </message>
    <message>
        <source>House edge</source>
        <translation>Ventaja</translation>
    </message>
    <message>
        <source>Edge a roll</source>
        <translation>Ventaja por tirada</translation>
    </message>
    <message>
        <source>Rolls to a decision</source>
        <translation>Tiradas hasta decidirse</translation>
    </message>
    <message>
        <source>What comes</source>
        <translation>Lo que sale</translation>
    </message>
    <message>
        <source>nothing, and stays</source>
        <translation>nada, y se queda</translation>
    </message>
    <message>
        <source>loses</source>
        <translation>pierde</translation>
    </message>
    <message>
        <source>loses in part</source>
        <translation>pierde en parte</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regla</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Ahora</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Casa</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Reglas</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Línea de órdenes</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Orden</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
</context>
<context>
    <name>Laboratory</name>
    <message>
        <source>Laboratory</source>
        <translation>Laboratorio</translation>
    </message>
    <message numerus="yes">
        <source>At the table: session %1 of %2, %3 rolls to %4</source>
        <translation>
            <numerusform>En la mesa: sesión %1 de %2, %3 tirada hasta %4</numerusform>
            <numerusform>En la mesa: sesión %1 de %2, %3 tiradas hasta %4</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no session rolled the dice: %2</source>
        <translation>%1: ninguna sesión tiró los dados: %2</translation>
    </message>
    <message>
        <source>%1: its script has errors: %2</source>
        <translation>%1: su script tiene errores: %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>%1 ends a session at %2 on average: between %3 and %4, 95% sure.</source>
        <translation>%1 acaba una sesión en %2 de media: entre %3 y %4, seguro al 95 %.</translation>
    </message>
    <message>
        <source>%1 ends a session %2 better than %3 on the same dice: between %4 and %5, 95% sure.</source>
        <translation>%1 acaba una sesión %2 mejor que %3 con los mismos dados: entre %4 y %5, seguro al 95 %.</translation>
    </message>
    <message>
        <source>Neither is sure to be better: %1 less %2 is %3 a session, between %4 and %5.</source>
        <translation>Ninguno es mejor con seguridad: %1 menos %2 es %3 por sesión, entre %4 y %5.</translation>
    </message>
    <message>
        <source>start %1</source>
        <translation>inicio %1</translation>
    </message>
    <message>
        <source>goal +%1</source>
        <translation>meta +%1</translation>
    </message>
    <message>
        <source>loss limit -%1</source>
        <translation>límite de pérdida -%1</translation>
    </message>
    <message numerus="yes">
        <source>at most %1 rolls</source>
        <translation>
            <numerusform>como mucho %1 tirada</numerusform>
            <numerusform>como mucho %1 tiradas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %1 hands</source>
        <translation>
            <numerusform>como mucho %1 mano</numerusform>
            <numerusform>como mucho %1 manos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions each, %2.</source>
        <translation>
            <numerusform>%1 sesión cada uno, %2.</numerusform>
            <numerusform>%1 sesiones cada uno, %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 would give ±%2.</source>
        <translation>%1 darían ±%2.</translation>
    </message>
    <message>
        <source>Goal reached</source>
        <translation>Meta alcanzada</translation>
    </message>
    <message>
        <source>Loss limit met</source>
        <translation>Límite de pérdida alcanzado</translation>
    </message>
    <message>
        <source>Ruined</source>
        <translation>Arruinado</translation>
    </message>
    <message>
        <source>Stopped by itself</source>
        <translation>Parado por sí mismo</translation>
    </message>
    <message>
        <source>Ended ahead</source>
        <translation>Acabó ganando</translation>
    </message>
    <message>
        <source>Ended even</source>
        <translation>Acabó igual</translation>
    </message>
    <message>
        <source>Ended behind</source>
        <translation>Acabó perdiendo</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sesiones</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Mean without luck</source>
        <translation>Media sin la suerte</translation>
    </message>
    <message>
        <source>Std Dev</source>
        <translation>Desv. est.</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Mín.</translation>
    </message>
    <message>
        <source>5% quantile</source>
        <translation>Cuantil 5 %</translation>
    </message>
    <message>
        <source>95% quantile</source>
        <translation>Cuantil 95 %</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Máx.</translation>
    </message>
    <message>
        <source>Mean drawdown</source>
        <translation>Retroceso medio</translation>
    </message>
    <message>
        <source>Ahead</source>
        <translation>Ganando</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>Meta</translation>
    </message>
    <message>
        <source>Mean rolls</source>
        <translation>Tiradas de media</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Medida</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>loss limit %1</source>
        <translation>límite de pérdida %1</translation>
    </message>
    <message>
        <source>goal %1</source>
        <translation>meta %1</translation>
    </message>
    <message>
        <source># sessions</source>
        <translation>N.º de sesiones</translation>
    </message>
    <message>
        <source>Line: 1% to 99%.  Thick: 5% to 95%.  Box: the middle half, bar at the median.  Diamond: mean.</source>
        <translation>Línea: 1 % a 99 %.  Gruesa: 5 % a 95 %.  Caja: la mitad central, barra en la mediana.  Rombo: media.</translation>
    </message>
    <message>
        <source>Only sessions with a most number of rolls are looked at on the way.</source>
        <translation>Solo se miran por el camino las sesiones con un máximo de tiradas.</translation>
    </message>
    <message>
        <source>Won or lost, $</source>
        <translation>Ganado o perdido, $</translation>
    </message>
    <message>
        <source>Rolls.  Line: median.  Inner band: the middle half.  Outer band: 5% to 95%.</source>
        <translation>Tiradas.  Línea: mediana.  Banda interior: la mitad central.  Banda exterior: 5 % a 95 %.</translation>
    </message>
    <message>
        <source>Result of a session, $</source>
        <translation>Resultado de una sesión, $</translation>
    </message>
    <message>
        <source>Bankrolls on the way</source>
        <translation>Bankrolls por el camino</translation>
    </message>
    <message>
        <source>How sessions end, with 95% bounds</source>
        <translation>Cómo acaban las sesiones, con límites del 95 %</translation>
    </message>
    <message>
        <source>Nothing has been played yet.</source>
        <translation>Aún no se ha jugado nada.</translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions (%2)</source>
        <translation>
            <numerusform>%1 sesión (%2)</numerusform>
            <numerusform>%1 sesiones (%2)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: A %3</source>
        <translation>%1 a %2: A %3</translation>
    </message>
    <message>
        <source>, B %1</source>
        <translation>, B %1</translation>
    </message>
    <message>
        <source>at most %1 hours</source>
        <translation>como mucho %1 horas</translation>
    </message>
    <message>
        <source>Price of the bets</source>
        <translation>Precio de las apuestas</translation>
    </message>
    <message>
        <source>less system</source>
        <translation>menos sistema</translation>
    </message>
    <message>
        <source>Mean difference</source>
        <translation>Diferencia media</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>To</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Better, 95% sure</source>
        <translation>Mejor, seguro al 95 %</translation>
    </message>
    <message>
        <source>the first</source>
        <translation>el primero</translation>
    </message>
    <message>
        <source>the second</source>
        <translation>el segundo</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>no se sabe</translation>
    </message>
    <message>
        <source>Least bankroll</source>
        <translation>Bankroll mínimo</translation>
    </message>
    <message>
        <source>Largest start of CheckStack %1</source>
        <translation>Mayor inicio del CheckStack %1</translation>
    </message>
    <message>
        <source>95% bounds</source>
        <translation>Límites del 95 %</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>%1: nothing keeps the ruined within %2.</source>
        <translation>%1: nada deja la ruina en %2 o menos.</translation>
    </message>
    <message>
        <source>%1 needs a bankroll of %2, so that at most %3 are ruined: between %4 and %5, 95% sure.</source>
        <translation>%1 necesita un bankroll de %2 para que se arruine como mucho el %3: entre %4 y %5, seguro al 95 %.</translation>
    </message>
    <message>
        <source>%1: any start of the CheckStack keeps the ruined within %2.</source>
        <translation>%1: cualquier inicio del CheckStack deja la ruina en %2 o menos.</translation>
    </message>
    <message>
        <source>%1: CheckStack %2 may start at %3, so that at most %4 are ruined: between %5 and %6, 95% sure.</source>
        <translation>%1: el CheckStack %2 puede empezar con %3 para que se arruine como mucho el %4: entre %5 y %6, seguro al 95 %.</translation>
    </message>
    <message>
        <source>No session was ruined.</source>
        <translation>Ninguna sesión acabó en ruina.</translation>
    </message>
    <message>
        <source>Ruined by then, share of sessions</source>
        <translation>Ya arruinadas, proporción de sesiones</translation>
    </message>
    <message>
        <source>Rolls.  Line: A.  Dashed: B.</source>
        <translation>Tiradas.  Línea: A.  Discontinua: B.</translation>
    </message>
    <message>
        <source>Rolls.</source>
        <translation>Tiradas.</translation>
    </message>
    <message>
        <source>Ruin over time</source>
        <translation>Ruina en el tiempo</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Barrido</translation>
    </message>
    <message>
        <source>Framed: the best.  Dotted: not sure to be worse than that.</source>
        <translation>Marco: el mejor.  Punteado: no es seguro que sea peor.</translation>
    </message>
    <message>
        <source>Framed: the best.</source>
        <translation>Marco: el mejor.</translation>
    </message>
    <message>
        <source>%1, with 95% bounds</source>
        <translation>%1, con límites del 95 %</translation>
    </message>
    <message>
        <source>Nothing was varied. Let a CheckStack start at several values, or vary a setting, and what comes of each stands here.</source>
        <translation>No se ha variado nada. Haga que un CheckStack empiece con varios valores, o varíe un ajuste, y aquí aparecerá lo que da cada uno.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: mean %2 ± %3, median %4, ruined %5</source>
        <translation>%1: media %2 ± %3, mediana %4, arruinado %5</translation>
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
        <translation>Elegir &amp;todo</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>No elegir &amp;nada</translation>
    </message>
</context>
<context>
    <name>Plates</name>
    <message numerus="yes">
        <source>%1 Bets:</source>
        <translation>
            <numerusform>%1 apuesta:</numerusform>
            <numerusform>%1 apuestas:</numerusform>
        </translation>
    </message>
    <message>
        <source>Won:</source>
        <translation>Ganado:</translation>
    </message>
    <message>
        <source>Lost:</source>
        <translation>Perdido:</translation>
    </message>
    <message>
        <source>Even:</source>
        <translation>Igual:</translation>
    </message>
    <message>
        <source>Rail:</source>
        <translation>Riel:</translation>
    </message>
    <message>
        <source>Bankroll:</source>
        <translation>Bankroll:</translation>
    </message>
    <message>
        <source>Bank:</source>
        <translation>Saldo:</translation>
    </message>
</context>
<context>
    <name>PrintHeading</name>
    <message>
        <source>Game file:  %1</source>
        <translation>Archivo de partida:  %1</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>sin título</translation>
    </message>
    <message>
        <source>Player:  %1</source>
        <translation>Jugador:  %1</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
    <message>
        <source>The pages are being made.</source>
        <translation>Se están preparando las páginas.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>The rows are being written.</source>
        <translation>Se están escribiendo las filas.</translation>
    </message>
    <message>
        <source>The rows are being copied.</source>
        <translation>Se están copiando las filas.</translation>
    </message>
</context>
<context>
    <name>ProbabilityPicture</name>
    <message>
        <source>Die 1 down, die 2 across: % points from fair</source>
        <translation>Dado 1 abajo, dado 2 a lo ancho: puntos de %</translation>
    </message>
    <message>
        <source>Totals: filled as set, hatched fair</source>
        <translation>Totales: lleno como está puesto, rayado justo</translation>
    </message>
    <message>
        <source>How the dice differ from fair ones</source>
        <translation>En qué difieren los dados de los justos</translation>
    </message>
</context>
<context>
    <name>ProbabilityTable</name>
    <message>
        <source>Probability</source>
        <translation>Probabilidad</translation>
    </message>
    <message>
        <source>Die 1</source>
        <translation>Dado 1</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totales</translation>
    </message>
    <message>
        <source>Die 2</source>
        <translation>Dado 2</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Total %1</translation>
    </message>
    <message>
        <source>Die 1 shows %1</source>
        <translation>El dado 1 muestra %1</translation>
    </message>
    <message>
        <source>Die 2 shows %1</source>
        <translation>El dado 2 muestra %1</translation>
    </message>
    <message>
        <source>Die 1 shows %1 and die 2 shows %2</source>
        <translation>El dado 1 muestra %1 y el dado 2 muestra %2</translation>
    </message>
    <message>
        <source>%1: %2, locked</source>
        <translation>%1: %2, bloqueado</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (sin guardar)</translation>
    </message>
    <message>
        <source>Die %1</source>
        <translation>Dado %1</translation>
    </message>
    <message>
        <source>Effectiveness %:</source>
        <translation>Eficacia %:</translation>
    </message>
    <message>
        <source>Die %1, shooter&apos;s effectiveness in percent</source>
        <translation>Dado %1, eficacia del tirador en por ciento</translation>
    </message>
    <message>
        <source>Shooter&apos;s Effectiveness</source>
        <translation>Eficacia del tirador</translation>
    </message>
    <message>
        <source>In so many percent of the rolls a die turns about its axis, so that the two faces at the axis&apos; ends never show. All cells are unlocked first.</source>
        <translation>En ese tanto por ciento de las tiradas un dado gira sobre su eje, de modo que las dos caras de sus extremos no salen nunca. Antes se desbloquean todas las casillas.</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Aceptar</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>* beyond 2 standard errors</source>
        <translation>* más de 2 errores estándar</translation>
    </message>
    <message>
        <source>PERCENT</source>
        <translation>POR CIENTO</translation>
    </message>
    <message>
        <source>Actual</source>
        <translation>Real</translation>
    </message>
    <message>
        <source>Probable (skewed)</source>
        <translation>Probable (sesgado)</translation>
    </message>
    <message>
        <source>Probable</source>
        <translation>Probable</translation>
    </message>
    <message>
        <source>TIMES</source>
        <translation>VECES</translation>
    </message>
    <message>
        <source>rolls to come again</source>
        <translation>tiradas hasta repetirse</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Estándar</translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translation>&amp;Verde</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation>&amp;Azul</translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translation>Ro&amp;jo</translation>
    </message>
    <message>
        <source>G&amp;old</source>
        <translation>&amp;Oro</translation>
    </message>
    <message>
        <source>&amp;Purple</source>
        <translation>&amp;Púrpura</translation>
    </message>
    <message>
        <source>&amp;Teal</source>
        <translation>Verde a&amp;zulado</translation>
    </message>
    <message>
        <source>Or&amp;ange</source>
        <translation>&amp;Naranja</translation>
    </message>
    <message>
        <source>Gr&amp;ey</source>
        <translation>&amp;Gris</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>&amp;Blanco</translation>
    </message>
    <message>
        <source>Blac&amp;k</source>
        <translation>Neg&amp;ro</translation>
    </message>
    <message>
        <source>No players present</source>
        <translation>No hay jugadores en la mesa</translation>
    </message>
    <message>
        <source>No players selected</source>
        <translation>Ningún jugador elegido</translation>
    </message>
    <message>
        <source>All players selected</source>
        <translation>Todos los jugadores elegidos</translation>
    </message>
    <message numerus="yes">
        <source>%1 players selected</source>
        <translation>
            <numerusform>%1 jugador elegido</numerusform>
            <numerusform>%1 jugadores elegidos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, more than two standard errors off</source>
        <translation>%1, a más de dos errores estándar</translation>
    </message>
    <message>
        <source>A click on a heading, or Enter, sorts by the column</source>
        <translation>Un clic en un título, o Intro, ordena por la columna</translation>
    </message>
    <message>
        <source>Percentages</source>
        <translation>Porcentajes</translation>
    </message>
    <message>
        <source>Skewed</source>
        <translation>Sesgado</translation>
    </message>
    <message>
        <source>&amp;11 basic numbers</source>
        <translation>&amp;11 números básicos</translation>
    </message>
    <message>
        <source>&amp;21 distinguishable combos</source>
        <translation>&amp;21 combinaciones distinguibles</translation>
    </message>
    <message>
        <source>&amp;36 unique combos</source>
        <translation>&amp;36 combinaciones únicas</translation>
    </message>
    <message>
        <source>&amp;Dice faces</source>
        <translation>&amp;Caras de los dados</translation>
    </message>
    <message>
        <source>Rolls that count</source>
        <translation>Tiradas que cuentan</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Jugador</translation>
    </message>
    <message>
        <source>Outcome of a roll</source>
        <translation>Resultado de una tirada</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Jugadores</translation>
    </message>
    <message>
        <source>Players who count</source>
        <translation>Jugadores que cuentan</translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Apuestas</translation>
    </message>
    <message>
        <source>Bets that count</source>
        <translation>Apuestas que cuentan</translation>
    </message>
    <message>
        <source>Probabilities of the percentage dice, else of true dice</source>
        <translation>Probabilidades de los dados de porcentaje, si no de dados verdaderos</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>&amp;Each bet in a row</source>
        <translation>&amp;Cada apuesta en una fila</translation>
    </message>
    <message>
        <source>Use thousands &amp;separator</source>
        <translation>&amp;Separador de miles</translation>
    </message>
    <message>
        <source>Font &amp;bold</source>
        <translation>Letra &amp;negrita</translation>
    </message>
    <message>
        <source>Font &amp;italic</source>
        <translation>&amp;Letra cursiva</translation>
    </message>
    <message>
        <source>Display &amp;totals</source>
        <translation>Mostrar &amp;totales</translation>
    </message>
    <message>
        <source>&amp;Hide probability bars</source>
        <translation>&amp;Ocultar las barras de probabilidad</translation>
    </message>
    <message>
        <source>Graph &amp;background color ...</source>
        <translation>Color de &amp;fondo del gráfico ...</translation>
    </message>
    <message>
        <source>&amp;Graph bars color ...</source>
        <translation>Color de las &amp;barras del gráfico ...</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>The table below it has its figures</source>
        <translation>La tabla de abajo tiene sus cifras</translation>
    </message>
    <message>
        <source>Selected player</source>
        <translation>Jugador elegido</translation>
    </message>
    <message>
        <source>* more than two standard errors from the probable</source>
        <translation>* a más de dos errores estándar de lo probable</translation>
    </message>
</context>
<context>
    <name>RollChart</name>
    <message>
        <source>Distribution of the totals: %1</source>
        <translation>Distribución de los totales: %1</translation>
    </message>
    <message>
        <source>%1: %2 of %3 rolls, %4%, fair dice %5%</source>
        <translation>%1: %2 de %3 tiradas, %4 %, dados justos %5 %</translation>
    </message>
    <message>
        <source>%1, more than two standard errors away</source>
        <translation>%1, a más de dos errores estándar</translation>
    </message>
    <message numerus="yes">
        <source>%1 values are no rolls</source>
        <translation>
            <numerusform>%1 valor no es una tirada</numerusform>
            <numerusform>%1 valores no son tiradas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RunControls</name>
    <message>
        <source>Stop &amp;Auto-Roll</source>
        <translation>Detener &amp;Auto-Roll</translation>
    </message>
    <message>
        <source>Stop &amp;Turbo-Roll</source>
        <translation>Detener &amp;Turbo-Roll</translation>
    </message>
    <message>
        <source>Start &amp;Auto-Roll</source>
        <translation>Iniciar &amp;Auto-Roll</translation>
    </message>
    <message>
        <source>Start &amp;Turbo-Roll</source>
        <translation>&amp;Iniciar Turbo-Roll</translation>
    </message>
    <message>
        <source>Auto-Roll</source>
        <translation>Auto-Roll</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Al máximo</translation>
    </message>
    <message>
        <source>%1 s a roll</source>
        <translation>%1 s/tirada</translation>
    </message>
</context>
<context>
    <name>ScriptLexer</name>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Logic</source>
        <translation>Lógica</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Función</translation>
    </message>
    <message>
        <source>Modifier</source>
        <translation>Modificador</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Número</translation>
    </message>
    <message>
        <source>Sign</source>
        <translation>Signo</translation>
    </message>
    <message>
        <source>Text in quotes</source>
        <translation>Texto entre comillas</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Jugador</translation>
    </message>
    <message>
        <source>Unknown word</source>
        <translation>Palabra desconocida</translation>
    </message>
</context>
<context>
    <name>Sounds</name>
    <message>
        <source>Missing sound files: %1</source>
        <translation>Faltan archivos de sonido: %1</translation>
    </message>
</context>
<context>
    <name>TableAccessible</name>
    <message>
        <source>%1, left end</source>
        <translation>%1, extremo izquierdo</translation>
    </message>
    <message>
        <source>%1, right end</source>
        <translation>%1, extremo derecho</translation>
    </message>
    <message>
        <source>Seat %1, open</source>
        <translation>Puesto %1, libre</translation>
    </message>
    <message>
        <source>Seat %1, %2</source>
        <translation>Puesto %1, %2</translation>
    </message>
    <message>
        <source>Checks of %1 on %2</source>
        <translation>Fichas de %1 en %2</translation>
    </message>
    <message>
        <source>Last roll</source>
        <translation>Última tirada</translation>
    </message>
    <message>
        <source>Take down</source>
        <translation>Retirar</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Apostar</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4)</source>
        <translation>Tirada %1: %2 (%3-%4)</translation>
    </message>
    <message>
        <source>seven-out, the point was %1</source>
        <translation>seven-out, el punto era %1</translation>
    </message>
    <message>
        <source>the point %1 is made</source>
        <translation>el punto %1 está hecho</translation>
    </message>
    <message>
        <source>the point is %1</source>
        <translation>el punto es %1</translation>
    </message>
    <message>
        <source>the point stays %1</source>
        <translation>el punto sigue en %1</translation>
    </message>
    <message>
        <source>%1 won %2</source>
        <translation>%1 gana %2</translation>
    </message>
    <message>
        <source>%1 lost %2</source>
        <translation>%1 pierde %2</translation>
    </message>
</context>
<context>
    <name>TableCommands</name>
    <message>
        <source>Carrying %1</source>
        <translation>%1 en la mano</translation>
    </message>
    <message>
        <source>Moving %1</source>
        <translation>Moviendo a %1</translation>
    </message>
    <message>
        <source>Next click: call a bet ON</source>
        <translation>Próximo clic: declarar una apuesta ON</translation>
    </message>
    <message>
        <source>Next click: call a bet OFF</source>
        <translation>Próximo clic: declarar una apuesta OFF</translation>
    </message>
    <message>
        <source>Next click: buy a Place bet</source>
        <translation>Próximo clic: comprar una apuesta Place</translation>
    </message>
    <message>
        <source>Next click: remove a bet</source>
        <translation>Próximo clic: retirar una apuesta</translation>
    </message>
    <message>
        <source>Next click: take a bet to move it</source>
        <translation>Próximo clic: tomar una apuesta para moverla</translation>
    </message>
    <message>
        <source>Click: bets %1</source>
        <translation>Clic: apuesta %1</translation>
    </message>
    <message>
        <source>Drag: moves it, off the felt takes it down; Delete and a click too</source>
        <translation>Arrastrar: la mueve, fuera del tapete la retira; también Supr y clic</translation>
    </message>
    <message>
        <source>Right click: rolls</source>
        <translation>Clic derecho: tira</translation>
    </message>
    <message>
        <source>No bet has ridden in this session</source>
        <translation>Ninguna apuesta ha jugado en esta sesión</translation>
    </message>
    <message>
        <source>Expected of the bets made: %1</source>
        <translation>Esperado de las apuestas hechas: %1</translation>
    </message>
    <message>
        <source>Came: %1</source>
        <translation>Llegado: %1</translation>
    </message>
    <message>
        <source>Luck: %1, %2 standard deviations</source>
        <translation>Suerte: %1, %2 desviaciones estándar</translation>
    </message>
    <message>
        <source>Rolls that were not counted: %1</source>
        <translation>Tiradas no contadas: %1</translation>
    </message>
</context>
<context>
    <name>TableLayout</name>
    <message>
        <source>PAYS</source>
        <translation>PAGA</translation>
    </message>
    <message>
        <source>HOPS</source>
        <translation>HOPS</translation>
    </message>
    <message>
        <source>%1  PAIRS %2</source>
        <extracomment>On the felt: what a hop pays, and what a pair pays.</extracomment>
        <translation>%1  PARES %2</translation>
    </message>
    <message>
        <source>ONE ROLL</source>
        <translation>UNA TIRADA</translation>
    </message>
    <message>
        <source>HARDWAYS</source>
        <translation>HARDWAYS</translation>
    </message>
    <message>
        <source>SIDE BETS</source>
        <translation>APUESTAS EXTRA</translation>
    </message>
</context>
<context>
    <name>TableTouch</name>
    <message>
        <source>Bet %1</source>
        <translation>Apostar %1</translation>
    </message>
    <message>
        <source>Take down</source>
        <translation>Retirar</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Mover</translation>
    </message>
    <message>
        <source>Call ON</source>
        <translation>Declarar ON</translation>
    </message>
    <message>
        <source>Call OFF</source>
        <translation>Declarar OFF</translation>
    </message>
    <message>
        <source>Buy</source>
        <translation>Comprar</translation>
    </message>
    <message>
        <source>Roll the dice</source>
        <translation>Tirar los dados</translation>
    </message>
</context>
<context>
    <name>ToolMenu</name>
    <message>
        <source>&amp;Print ...</source>
        <translation>&amp;Imprimir ...</translation>
    </message>
    <message>
        <source>Print pre&amp;view ...</source>
        <translation>Vista p&amp;revia ...</translation>
    </message>
    <message>
        <source>Save as P&amp;DF ...</source>
        <translation>Guardar como P&amp;DF ...</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>Co&amp;piar todo</translation>
    </message>
    <message>
        <source>&amp;Export table (CSV) ...</source>
        <translation>Exportar &amp;tabla (CSV) ...</translation>
    </message>
    <message>
        <source>Export p&amp;icture (PNG) ...</source>
        <translation>Exportar ima&amp;gen (PNG) ...</translation>
    </message>
    <message>
        <source>Export drawin&amp;g (SVG) ...</source>
        <translation>Exportar dibujo (&amp;SVG) ...</translation>
    </message>
    <message>
        <source>Dock at the &amp;right</source>
        <translation>&amp;Acoplar a la derecha</translation>
    </message>
    <message>
        <source>Dock &amp;below</source>
        <translation>Acoplar a&amp;bajo</translation>
    </message>
    <message>
        <source>Dock at the &amp;left</source>
        <translation>Acoplar a &amp;la izquierda</translation>
    </message>
    <message>
        <source>&amp;Window of its own</source>
        <translation>&amp;Ventana propia</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>&amp;Output</source>
        <translation>&amp;Salida</translation>
    </message>
    <message>
        <source>P&amp;lace</source>
        <translation>&amp;Lugar</translation>
    </message>
</context>
<context>
    <name>tessaryn::AdjustEdit</name>
    <message>
        <source>%1: operator</source>
        <translation>%1: operador</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>más</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>menos</translation>
    </message>
    <message>
        <source>times</source>
        <translation>por</translation>
    </message>
    <message>
        <source>divided by</source>
        <translation>dividido por</translation>
    </message>
    <message>
        <source>%1: amount</source>
        <translation>%1: importe</translation>
    </message>
    <message>
        <source>%1: unit</source>
        <translation>%1: unidad</translation>
    </message>
    <message>
        <source>(number)</source>
        <translation>(número)</translation>
    </message>
    <message>
        <source>dollars</source>
        <translation>dólares</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>por ciento</translation>
    </message>
    <message>
        <source>%1 units</source>
        <translation>unidades de %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::AdvantagePage</name>
    <message>
        <source>by the point</source>
        <translation>según el punto</translation>
    </message>
    <message>
        <source>in shares</source>
        <translation>en partes</translation>
    </message>
    <message>
        <source>by its table</source>
        <translation>según su tabla</translation>
    </message>
    <message>
        <source>Advantage</source>
        <translation>Ventaja</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Apuesta</translation>
    </message>
    <message>
        <source>EV/Roll</source>
        <translation>VE/tirada</translation>
    </message>
    <message>
        <source>StDev/Roll</source>
        <translation>DE/tirada</translation>
    </message>
    <message>
        <source>EV/Dec</source>
        <translation>VE/dec.</translation>
    </message>
    <message>
        <source>StDev/Dec</source>
        <translation>DE/dec.</translation>
    </message>
    <message>
        <source>EV/Hour</source>
        <translation>VE/hora</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Puesta</translation>
    </message>
    <message>
        <source>Up/Hour</source>
        <translation>Puesta/hora</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Rolls/Dec</source>
        <translation>Tiradas/dec.</translation>
    </message>
    <message>
        <source>Time/Dec</source>
        <translation>Tiempo/dec.</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Paga</translation>
    </message>
    <message>
        <source>EV and deviation in dollars on the bet amount. Up: what the player has on the table, and what it is expected to bring in an hour. Session: what was to be expected of the bets that this session decided.</source>
        <translation>Valor esperado y desviación en dólares para el importe de la apuesta. Puesta: lo que el jugador tiene en la mesa, y lo que cabe esperar de ello en una hora. Sesión: lo que cabía esperar de las apuestas que esta sesión decidió.</translation>
    </message>
    <message>
        <source>Bet amount</source>
        <translation>Importe de la apuesta</translation>
    </message>
    <message>
        <source>Bet &amp;amount</source>
        <translation>&amp;Importe de la apuesta</translation>
    </message>
    <message>
        <source>&amp;Player</source>
        <translation>&amp;Jugador</translation>
    </message>
    <message>
        <source>Sort &amp;by</source>
        <translation>&amp;Ordenar por</translation>
    </message>
    <message>
        <source>&amp;Only bets that are up</source>
        <translation>&amp;Solo apuestas puestas</translation>
    </message>
    <message>
        <source>Include &amp;zero outcomes</source>
        <translation>Incluir los resultados &amp;nulos</translation>
    </message>
    <message>
        <source>Show &amp;misc data</source>
        <translation>Más &amp;datos</translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation>No hay jugadores en la mesa.</translation>
    </message>
    <message>
        <source>%1 has no bets up.</source>
        <translation>%1 no tiene apuestas puestas.</translation>
    </message>
    <message>
        <source>At %1 rolls an hour the bets that %2 has up are expected to bring %3 an hour</source>
        <translation>A %1 tiradas por hora se espera de las apuestas de %2 %3 por hora</translation>
    </message>
    <message>
        <source> Odds are counted while a point is on, and Come and Don&apos;t Come bets are made while one is.</source>
        <translation> Las Odds cuentan mientras hay un punto, y Come y Don&apos;t Come se hacen entonces.</translation>
    </message>
    <message>
        <source> How far an hour strays from that is left out: what %1 has in common with the other bets can&apos;t be told.</source>
        <translation> Cuánto se aparta de eso una hora se deja fuera: no se puede decir lo que %1 tiene en común con las demás apuestas.</translation>
    </message>
    <message>
        <source>No bet has been decided in this session.</source>
        <translation>No se ha decidido ninguna apuesta en esta sesión.</translation>
    </message>
    <message>
        <source>This session decided %1 of bets: %2 was to be expected of them, %3 it came to.</source>
        <translation>Esta sesión decidió %1 de apuestas: se esperaban %2, han sido %3.</translation>
    </message>
    <message>
        <source>%1% of all</source>
        <translation>%1 % de todas</translation>
    </message>
    <message>
        <source>%1% of winners</source>
        <translation>%1 % de las ganadoras</translation>
    </message>
    <message>
        <source>Dice: %1. A roll takes %2. Buy vig: %3. Lay vig: %4. Bar: %5. %6</source>
        <translation>Dados: %1. Una tirada dura %2. Vig Buy: %3. Vig Lay: %4. Barra: %5. %6</translation>
    </message>
    <message>
        <source>percentage dice</source>
        <translation>dados de porcentaje</translation>
    </message>
    <message>
        <source>fair</source>
        <translation>justos</translation>
    </message>
    <message>
        <source>Rolls that leave a bet in place count as decisions.</source>
        <translation>Las tiradas que dejan una apuesta en su sitio cuentan como decisiones.</translation>
    </message>
    <message>
        <source>Only wins and losses count as decisions.</source>
        <translation>Solo ganancias y pérdidas cuentan como decisiones.</translation>
    </message>
    <message>
        <source>%1, give or take %2</source>
        <translation>%1, %2 más o menos</translation>
    </message>
</context>
<context>
    <name>tessaryn::AmountSelector</name>
    <message>
        <source>Bet amount</source>
        <translation>Importe de la apuesta</translation>
    </message>
    <message>
        <source>Amount that a click bets</source>
        <translation>Importe que apuesta un clic</translation>
    </message>
    <message>
        <source>The amount that a click bets</source>
        <translation>El importe que apuesta un clic</translation>
    </message>
    <message>
        <source>Bet %1 a click</source>
        <translation>Apostar %1 por clic</translation>
    </message>
</context>
<context>
    <name>tessaryn::AtmScreen</name>
    <message>
        <source>ATM</source>
        <translation>Cajero</translation>
    </message>
    <message>
        <source>Bankroll:</source>
        <translation>Bankroll:</translation>
    </message>
    <message>
        <source>On the table:</source>
        <translation>En la mesa:</translation>
    </message>
    <message>
        <source>Rail:</source>
        <translation>Riel:</translation>
    </message>
    <message>
        <source>Drawn from the ATM:</source>
        <translation>Sacado del cajero:</translation>
    </message>
    <message>
        <source>Allow &amp;negative bankroll</source>
        <translation>Permitir bankroll &amp;negativo</translation>
    </message>
    <message>
        <source>The ATM is switched off in the configuration.</source>
        <translation>El cajero está desconectado en la configuración.</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>&amp;Importe:</translation>
    </message>
    <message>
        <source>&amp;Withdraw</source>
        <translation>&amp;Retirar</translation>
    </message>
    <message>
        <source>&amp;Deposit</source>
        <translation>&amp;Depositar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
</context>
<context>
    <name>tessaryn::AutoPlayScreen</name>
    <message>
        <source>Auto-&amp;take full odds</source>
        <translation>&amp;Tomar Odds completas solo</translation>
    </message>
    <message>
        <source>On Pass Line and Come, when a point is set and when the flat bet changes</source>
        <translation>En Pass Line y Come, cuando se fija un punto y cuando cambia la apuesta base</translation>
    </message>
    <message>
        <source>Auto-&amp;lay full odds</source>
        <translation>&amp;Poner Odds completas solo</translation>
    </message>
    <message>
        <source>On Don&apos;t Pass and Don&apos;t Come, when a point is set and when the flat bet changes</source>
        <translation>En Don&apos;t Pass y Don&apos;t Come, cuando se fija un punto y cuando cambia la apuesta base</translation>
    </message>
    <message>
        <source>Auto-&amp;down Place bets</source>
        <translation>&amp;Bajar solo las apuestas Place</translation>
    </message>
    <message>
        <source>Place and Buy bets on the number of a line or Come bet come down</source>
        <translation>Las apuestas Place y Buy sobre el número de una apuesta de línea o Come se retiran</translation>
    </message>
    <message>
        <source>Auto-&amp;pass the dice</source>
        <translation>Pa&amp;sar los dados solo</translation>
    </message>
    <message>
        <source>The player never shoots</source>
        <translation>El jugador no tira nunca</translation>
    </message>
    <message>
        <source>Place and Buy:</source>
        <translation>Place y Buy:</translation>
    </message>
    <message>
        <source>Do side, others:</source>
        <translation>Lado Do, otras:</translation>
    </message>
    <message>
        <source>Don&apos;t side:</source>
        <translation>Lado Don&apos;t:</translation>
    </message>
    <message>
        <source>Lay:</source>
        <translation>Lay:</translation>
    </message>
    <message>
        <source> Manual</source>
        <translation> Manual</translation>
    </message>
    <message>
        <source> Auto w/ minor correction</source>
        <translation> Auto con corrección menor</translation>
    </message>
    <message>
        <source> Auto w/ color correction</source>
        <translation> Auto con corrección de color</translation>
    </message>
    <message>
        <source>Auto-Play</source>
        <translation>Auto-Play</translation>
    </message>
    <message>
        <source>Pla&amp;yer:</source>
        <translation>&amp;Jugador:</translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation>No hay jugadores en la mesa.</translation>
    </message>
    <message>
        <source>Winning bets</source>
        <translation>Apuestas ganadoras</translation>
    </message>
    <message>
        <source>Losing bets</source>
        <translation>Apuestas perdedoras</translation>
    </message>
    <message>
        <source>Bet amounts that pay whole</source>
        <translation>Importes que pagan exacto</translation>
    </message>
    <message>
        <source>By the change</source>
        <translation>Según el cambio</translation>
    </message>
    <message>
        <source>Upward</source>
        <translation>Hacia arriba</translation>
    </message>
    <message>
        <source>Downward</source>
        <translation>Hacia abajo</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Work on come-out</source>
        <translation>Trabajar en el come-out</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Elegir t&amp;odo</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
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
        <translation>Jugador</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Modes, averages, colors, printing</source>
        <translation>Modos, medias, colores, impresión</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Máx.</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Actual</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Mín.</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Reference line %1</source>
        <translation>Línea de referencia %1</translation>
    </message>
    <message>
        <source>Bankroll dif</source>
        <translation>Dif. de bankroll</translation>
    </message>
    <message>
        <source>Graph up</source>
        <translation>Subir el gráfico</translation>
    </message>
    <message>
        <source>Graph down</source>
        <translation>Bajar el gráfico</translation>
    </message>
    <message>
        <source>Smaller scale</source>
        <translation>Escala menor</translation>
    </message>
    <message>
        <source>- Scale</source>
        <translation>- Escala</translation>
    </message>
    <message>
        <source>Larger scale</source>
        <translation>Escala mayor</translation>
    </message>
    <message>
        <source>Scale +</source>
        <translation>Escala +</translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation>Velocidad de la serie</translation>
    </message>
    <message>
        <source>Start Turbo-Roll</source>
        <translation>Iniciar Turbo-Roll</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>rápido</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>lento</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 tirada</numerusform>
            <numerusform>%1 tiradas</numerusform>
        </translation>
    </message>
    <message>
        <source>@ %1 rolls/hr</source>
        <translation>a %1 tiradas/h</translation>
    </message>
    <message>
        <source>= %1 sim hrs</source>
        <translation>= %1 h sim.</translation>
    </message>
    <message>
        <source>Rolls diff</source>
        <translation>Dif. en tiradas</translation>
    </message>
    <message>
        <source>Plot &amp;type</source>
        <translation>Tipo &amp;de trazado</translation>
    </message>
    <message>
        <source>&amp;Page</source>
        <translation>&amp;Página</translation>
    </message>
    <message>
        <source>&amp;Scroll</source>
        <translation>&amp;Desplazamiento</translation>
    </message>
    <message>
        <source>Ad&amp;just scale</source>
        <translation>&amp;Ajustar la escala</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manual</translation>
    </message>
    <message>
        <source>Auto-&amp;shift </source>
        <translation>Desplazar &amp;solo </translation>
    </message>
    <message>
        <source>Auto-shift with &amp;expanding scale</source>
        <translation>Desplazar solo, escala que se e&amp;xpande</translation>
    </message>
    <message>
        <source>Auto-shift with s&amp;nap-back scale</source>
        <translation>Desplazar solo, escala que &amp;vuelve</translation>
    </message>
    <message>
        <source>Display &amp;grid lines</source>
        <translation>Mostrar &amp;cuadrícula</translation>
    </message>
    <message>
        <source>Display &amp;reference lines</source>
        <translation>Mostrar líneas de &amp;referencia</translation>
    </message>
    <message>
        <source>Display moving &amp;average</source>
        <translation>Mostrar media &amp;móvil</translation>
    </message>
    <message>
        <source>Set &amp;moving average ...</source>
        <translation>Fijar la media mó&amp;vil ...</translation>
    </message>
    <message>
        <source>&amp;Players together</source>
        <translation>Jugadores &amp;juntos</translation>
    </message>
    <message>
        <source>Graph st&amp;yle</source>
        <translation>&amp;Estilo del gráfico</translation>
    </message>
    <message>
        <source>&amp;Plain</source>
        <translation>&amp;Simple</translation>
    </message>
    <message>
        <source>&amp;Striped</source>
        <translation>&amp;Rayado</translation>
    </message>
    <message>
        <source>S&amp;olid</source>
        <translation>&amp;Lleno</translation>
    </message>
    <message>
        <source>Set &amp;color</source>
        <translation>C&amp;olores</translation>
    </message>
    <message>
        <source>&amp;Background ...</source>
        <translation>&amp;Fondo ...</translation>
    </message>
    <message>
        <source>&amp;Text ...</source>
        <translation>&amp;Texto ...</translation>
    </message>
    <message>
        <source>&amp;Grid lines ...</source>
        <translation>&amp;Cuadrícula ...</translation>
    </message>
    <message>
        <source>&amp;Start of the session ...</source>
        <translation>&amp;Inicio de la sesión ...</translation>
    </message>
    <message>
        <source>Bank&amp;roll ...</source>
        <translation>Bank&amp;roll ...</translation>
    </message>
    <message>
        <source>&amp;Area under the bankroll ...</source>
        <translation>&amp;Área bajo el bankroll ...</translation>
    </message>
    <message>
        <source>&amp;Moving average ...</source>
        <translation>&amp;Media móvil ...</translation>
    </message>
    <message>
        <source>Reference line &amp;1 ...</source>
        <translation>Línea de referencia &amp;1 ...</translation>
    </message>
    <message>
        <source>Reference line &amp;2 ...</source>
        <translation>Línea de referencia &amp;2 ...</translation>
    </message>
    <message>
        <source>&amp;Pointer ...</source>
        <translation>&amp;Puntero ...</translation>
    </message>
    <message>
        <source>&amp;Default colors</source>
        <translation>Colores de &amp;origen</translation>
    </message>
    <message>
        <source>Print &amp;now</source>
        <translation>&amp;Imprimir ahora</translation>
    </message>
    <message>
        <source>A&amp;uto-print</source>
        <translation>Imprimir a&amp;utomáticamente</translation>
    </message>
    <message>
        <source>Grap&amp;hs on a page</source>
        <translation>&amp;Gráficos por página</translation>
    </message>
    <message>
        <source>Set Auto-Roll time &amp;delay ...</source>
        <translation>&amp;Pausa de Auto-Roll ...</translation>
    </message>
    <message>
        <source>Set Auto-St&amp;op ...</source>
        <translation>Parada automá&amp;tica ...</translation>
    </message>
    <message>
        <source>Show &amp;logged messages</source>
        <translation>Mostrar los mensajes a&amp;notados</translation>
    </message>
</context>
<context>
    <name>tessaryn::Board</name>
    <message>
        <source>Skip</source>
        <translation>Saltar</translation>
    </message>
    <message>
        <source>The first steps aren&apos;t shown again</source>
        <translation>Los primeros pasos no se muestran más</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>preguntarme</translation>
    </message>
    <message>
        <source>leave the bet, take the winnings</source>
        <translation>dejar la apuesta, tomar las ganancias</translation>
    </message>
    <message>
        <source>POINT</source>
        <translation>PUNTO</translation>
    </message>
    <message>
        <source>COME-OUT</source>
        <translation>COME-OUT</translation>
    </message>
    <message>
        <source>Last roll</source>
        <translation>Última tirada</translation>
    </message>
    <message>
        <source>When a bet wins:</source>
        <translation>Cuando gana una apuesta:</translation>
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
        <translation>Haga clic en una posición abierta en el riel para agregar un jugador.</translation>
    </message>
    <message>
        <source>No roll yet</source>
        <translation>Aún no hay tirada</translation>
    </message>
    <message>
        <source>LAST %1</source>
        <translation>ÚLTIMAS %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 notes:</source>
        <translation>
            <numerusform>%1 nota:</numerusform>
            <numerusform>%1 notas:</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::CheckStackList</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Place %1 at the rail</source>
        <translation>Poner %1 en el riel</translation>
    </message>
</context>
<context>
    <name>tessaryn::CheckStackView</name>
    <message>
        <source>Value of CheckStack %1</source>
        <translation>Valor del CheckStack %1</translation>
    </message>
    <message>
        <source>Name of CheckStack %1</source>
        <translation>Nombre del CheckStack %1</translation>
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
        <translation>Jugador</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Undo, clipboard, deletions, the stacks on the table</source>
        <translation>Deshacer, portapapeles, borrar, las pilas en la mesa</translation>
    </message>
    <message>
        <source>On the table</source>
        <translation>En la mesa</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Und&amp;o	Ctrl+Z</source>
        <translation>&amp;Deshacer	Ctrl+Z</translation>
    </message>
    <message>
        <source>&amp;Redo	Ctrl+Y</source>
        <translation>&amp;Rehacer	Ctrl+Y</translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation>Cor&amp;tar	Ctrl+X</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>&amp;Copiar	Ctrl+C</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>&amp;Pegar	Ctrl+V</translation>
    </message>
    <message>
        <source>&amp;Delete	Del</source>
        <translation>&amp;Borrar	Del</translation>
    </message>
    <message>
        <source>Delete &amp;all</source>
        <translation>Borrar t&amp;odo</translation>
    </message>
    <message>
        <source>Delete all val&amp;ues</source>
        <translation>Borrar todos los &amp;valores</translation>
    </message>
    <message>
        <source>Delete all &amp;names</source>
        <translation>Borrar todos los &amp;nombres</translation>
    </message>
    <message>
        <source>&amp;Set visible checkstacks</source>
        <translation>Elegir los CheckStacks v&amp;isibles</translation>
    </message>
    <message>
        <source>Display &amp;zero values</source>
        <translation>&amp;Mostrar los valores cero</translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation>Tamaño de &amp;letra</translation>
    </message>
    <message>
        <source>&amp;Desktop&apos;s</source>
        <translation>El del &amp;escritorio</translation>
    </message>
    <message>
        <source>CheckStacks of %1</source>
        <translation>CheckStacks de %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
</context>
<context>
    <name>tessaryn::CompsPage</name>
    <message>
        <source>Total comp action</source>
        <translation>Acción total para comps</translation>
    </message>
    <message>
        <source>Comp bets decided</source>
        <translation>Apuestas de comps decididas</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Tiradas</translation>
    </message>
    <message>
        <source>Expected result</source>
        <translation>Resultado esperado</translation>
    </message>
    <message>
        <source>Avg action x time</source>
        <translation>Acción media x tiempo</translation>
    </message>
    <message>
        <source>Comp value</source>
        <translation>Valor de los comps</translation>
    </message>
    <message>
        <source>Comps so far</source>
        <translation>Comps hasta ahora</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Jugador</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Ámbito</translation>
    </message>
    <message>
        <source>Bets figured in comps</source>
        <translation>Apuestas que cuentan para comps</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Apuesta</translation>
    </message>
    <message>
        <source>Comps</source>
        <translation>Comps</translation>
    </message>
    <message>
        <source>Wagered</source>
        <translation>Apostado</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Esperado</translation>
    </message>
    <message>
        <source>A double click or the space bar changes a bet.</source>
        <translation>Un doble clic o la barra espaciadora cambia una apuesta.</translation>
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
        <source>Select all</source>
        <translation>Elegir todo</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Ordenar por</translation>
    </message>
</context>
<context>
    <name>tessaryn::ConfigurationScreen</name>
    <message>
        <source>House</source>
        <translation>Casa</translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Apuestas</translation>
    </message>
    <message>
        <source>Payoffs</source>
        <translation>Pagos</translation>
    </message>
    <message>
        <source>Advantage</source>
        <translation>Ventaja</translation>
    </message>
    <message>
        <source>Comps</source>
        <translation>Comps</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Tapete</translation>
    </message>
    <message>
        <source>Bankroll</source>
        <translation>Bankroll</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Colores</translation>
    </message>
    <message>
        <source>Probability</source>
        <translation>Probabilidad</translation>
    </message>
    <message>
        <source>Generator</source>
        <translation>Generador</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Misc</source>
        <translation>Varios</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Buscar un ajuste</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Pestañas</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Not taken yet: %1. %2</source>
        <translation>Aún no aceptado: %1. %2</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Pestaña</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>A double click or the space bar changes a bet. New players take this as they buy in.</source>
        <translation>Un doble clic o la barra espaciadora cambia una apuesta. Los jugadores nuevos reciben esto al entrar.</translation>
    </message>
    <message>
        <source> - Yes</source>
        <translation> - Sí</translation>
    </message>
    <message>
        <source> - No</source>
        <translation> - No</translation>
    </message>
    <message>
        <source>Work on come-out roll</source>
        <translation>Trabajar en el come-out</translation>
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
        <source>Select all</source>
        <translation>Elegir todo</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Fichas</translation>
    </message>
    <message>
        <source>Restore default denominations</source>
        <translation>Restaurar los valores de origen</translation>
    </message>
    <message>
        <source>Amount to add or subtract</source>
        <translation>Importe a sumar o restar</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Sumar</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Restar</translation>
    </message>
    <message>
        <source>Add or subtract</source>
        <translation>Sumar o restar</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Jugador</translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation>No hay jugadores en la mesa.</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sonidos</translation>
    </message>
    <message>
        <source>Stick person</source>
        <translation>Stickman</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Dados</translation>
    </message>
    <message>
        <source>Wins</source>
        <translation>Ganancias</translation>
    </message>
    <message>
        <source>&lt; none &gt;</source>
        <translation>&lt; ninguno &gt;</translation>
    </message>
    <message>
        <source>Stick person 1</source>
        <translation>Stickman 1</translation>
    </message>
    <message>
        <source>&lt; random &gt;</source>
        <translation>&lt; al azar &gt;</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>Probar</translation>
    </message>
    <message>
        <source>Try: %1</source>
        <translation>Probar: %1</translation>
    </message>
    <message>
        <source>The program&apos;s sound files aren&apos;t there.</source>
        <translation>Los archivos de sonido del programa no están.</translation>
    </message>
    <message>
        <source>Rolls / hr</source>
        <translation>Tiradas / h</translation>
    </message>
    <message>
        <source>Rolls / min</source>
        <translation>Tiradas / min</translation>
    </message>
    <message>
        <source>Rolls / sec</source>
        <translation>Tiradas / s</translation>
    </message>
    <message>
        <source>Hrs / roll</source>
        <translation>H / tirada</translation>
    </message>
    <message>
        <source>Mins / roll</source>
        <translation>Min / tirada</translation>
    </message>
    <message>
        <source>Secs / roll</source>
        <translation>S / tirada</translation>
    </message>
    <message>
        <source>How the rate is shown</source>
        <translation>Cómo se muestra el ritmo</translation>
    </message>
    <message>
        <source>Simulated roll rate</source>
        <translation>Ritmo simulado de tiradas</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Límites</translation>
    </message>
    <message>
        <source>Odds</source>
        <translation>Odds</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Reglas</translation>
    </message>
    <message>
        <source>Buy bets</source>
        <translation>Apuestas Buy</translation>
    </message>
    <message>
        <source>Lay bets</source>
        <translation>Apuestas Lay</translation>
    </message>
    <message>
        <source>Bets on the table</source>
        <translation>Apuestas de la mesa</translation>
    </message>
    <message>
        <source>Stacks and amounts</source>
        <translation>Pilas e importes</translation>
    </message>
    <message>
        <source>New players</source>
        <translation>Jugadores nuevos</translation>
    </message>
    <message>
        <source>ATM</source>
        <translation>Cajero</translation>
    </message>
    <message>
        <source>All sounds</source>
        <translation>Todos los sonidos</translation>
    </message>
    <message>
        <source>Messages to show</source>
        <translation>Mensajes a mostrar</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Puntero</translation>
    </message>
    <message>
        <source>Font size of the screens</source>
        <translation>Tamaño de letra de las pantallas</translation>
    </message>
    <message>
        <source>Dice on the table</source>
        <translation>Dados en la mesa</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impresora</translation>
    </message>
    <message>
        <source>Figure comps based on:</source>
        <translation>Comps calculados según:</translation>
    </message>
    <message>
        <source>For every new session:</source>
        <translation>En cada sesión nueva:</translation>
    </message>
    <message>
        <source>dollars</source>
        <translation>dólares</translation>
    </message>
    <message>
        <source>x flat bet</source>
        <translation>x apuesta base</translation>
    </message>
    <message>
        <source> Bar 12</source>
        <translation> Barra 12</translation>
    </message>
    <message>
        <source> Bar 2</source>
        <translation> Barra 2</translation>
    </message>
    <message>
        <source> Small</source>
        <translation> Pequeño</translation>
    </message>
    <message>
        <source> Medium</source>
        <translation> Mediano</translation>
    </message>
    <message>
        <source> Large</source>
        <translation> Grande</translation>
    </message>
    <message>
        <source>Minimum bet</source>
        <translation>Apuesta mínima</translation>
    </message>
    <message>
        <source>Minimum prop bet</source>
        <translation>Apuesta mínima de proposición</translation>
    </message>
    <message>
        <source>Maximum bet</source>
        <translation>Apuesta máxima</translation>
    </message>
    <message>
        <source>Max prop bet payoff</source>
        <translation>Pago máximo de proposición</translation>
    </message>
    <message>
        <source>Maximum odds bet</source>
        <translation>Apuesta Odds máxima</translation>
    </message>
    <message>
        <source>Odds on 4 and 10</source>
        <translation>Odds en 4 y 10</translation>
    </message>
    <message>
        <source>Odds on 5 and 9</source>
        <translation>Odds en 5 y 9</translation>
    </message>
    <message>
        <source>Odds on 6 and 8</source>
        <translation>Odds en 6 y 8</translation>
    </message>
    <message>
        <source>Odds calculation</source>
        <translation>Cálculo de Odds</translation>
    </message>
    <message>
        <source>To shoot</source>
        <translation>Para tirar</translation>
    </message>
    <message>
        <source>Don&apos;t side</source>
        <translation>Lado Don&apos;t</translation>
    </message>
    <message>
        <source>Allow Put bets</source>
        <translation>Permitir apuestas Put</translation>
    </message>
    <message>
        <source>Return abandoned bets</source>
        <translation>Devolver apuestas abandonadas</translation>
    </message>
    <message>
        <source>Vig</source>
        <translation>Vig</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Redondeo</translation>
    </message>
    <message>
        <source>Buy vig</source>
        <translation>Vig Buy</translation>
    </message>
    <message>
        <source>Lay vig</source>
        <translation>Vig Lay</translation>
    </message>
    <message>
        <source>Big 6 and Big 8</source>
        <translation>Big 6 y Big 8</translation>
    </message>
    <message>
        <source>Midway bet</source>
        <translation>Apuesta Midway</translation>
    </message>
    <message>
        <source>Special prop bets</source>
        <translation>Proposiciones especiales</translation>
    </message>
    <message>
        <source>Fire bet</source>
        <translation>Apuesta Fire</translation>
    </message>
    <message>
        <source>Max Fire bet</source>
        <translation>Apuesta Fire máxima</translation>
    </message>
    <message>
        <source>Auto-arrange checks</source>
        <translation>Ordenar las fichas</translation>
    </message>
    <message>
        <source>Use cents symbol below a dollar</source>
        <translation>Signo de centavo bajo un dólar</translation>
    </message>
    <message>
        <source>First check</source>
        <translation>Primera ficha</translation>
    </message>
    <message>
        <source>Second check</source>
        <translation>Segunda ficha</translation>
    </message>
    <message>
        <source>Third check</source>
        <translation>Tercera ficha</translation>
    </message>
    <message>
        <source>Fourth check</source>
        <translation>Cuarta ficha</translation>
    </message>
    <message>
        <source>Fifth check</source>
        <translation>Quinta ficha</translation>
    </message>
    <message>
        <source>Allow negative bankroll</source>
        <translation>Permitir bankroll negativo</translation>
    </message>
    <message>
        <source>At a new session</source>
        <translation>En una sesión nueva</translation>
    </message>
    <message>
        <source>New session&apos;s bankroll</source>
        <translation>Bankroll de la sesión nueva</translation>
    </message>
    <message>
        <source>Bankroll offered</source>
        <translation>Bankroll ofrecido</translation>
    </message>
    <message>
        <source>The ATM works</source>
        <translation>El cajero funciona</translation>
    </message>
    <message>
        <source>Usual amount</source>
        <translation>Importe habitual</translation>
    </message>
    <message>
        <source>Sounds of auto-bet scripts</source>
        <translation>Sonidos de los scripts de Auto-Bet</translation>
    </message>
    <message>
        <source>Disable all sound</source>
        <translation>Quitar todo el sonido</translation>
    </message>
    <message>
        <source>Info tips</source>
        <translation>Sugerencias</translation>
    </message>
    <message>
        <source>Snap to the default button of a box</source>
        <translation>Ir al botón predeterminado de un cuadro</translation>
    </message>
    <message>
        <source>Print in colors</source>
        <translation>Imprimir en color</translation>
    </message>
    <message>
        <source>Use true probabilities</source>
        <translation>Usar probabilidades verdaderas</translation>
    </message>
    <message>
        <source>Comp rate</source>
        <translation>Tasa de comps</translation>
    </message>
</context>
<context>
    <name>tessaryn::EventsLogScreen</name>
    <message>
        <source>Everything</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Tiradas</translation>
    </message>
    <message>
        <source>Rolls, passes and misses</source>
        <translation>Tiradas, passes y misses</translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Apuestas</translation>
    </message>
    <message>
        <source>Wins and losses</source>
        <translation>Ganancias y pérdidas</translation>
    </message>
    <message>
        <source>Wins</source>
        <translation>Ganancias</translation>
    </message>
    <message>
        <source>Losses</source>
        <translation>Pérdidas</translation>
    </message>
    <message>
        <source>Bankrolls</source>
        <translation>Bankrolls</translation>
    </message>
    <message>
        <source>CheckStacks</source>
        <translation>CheckStacks</translation>
    </message>
    <message>
        <source>Shooters and hands</source>
        <translation>Tiradores y manos</translation>
    </message>
    <message>
        <source>Sessions, players, scripts</source>
        <translation>Sesiones, jugadores, scripts</translation>
    </message>
    <message>
        <source>Lo&amp;g</source>
        <translation>&amp;Registro</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Abrir ...</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>&amp;Guardar como ...</translation>
    </message>
    <message>
        <source>&amp;Look at another log ...</source>
        <translation>&amp;Mirar otro registro ...</translation>
    </message>
    <message>
        <source>&amp;Back to the table&apos;s log</source>
        <translation>&amp;Volver al registro de la mesa</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Buscar ...</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>A&amp;nterior</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>O&amp;pciones</translation>
    </message>
    <message>
        <source>Record &amp;events</source>
        <translation>&amp;Grabar eventos</translation>
    </message>
    <message>
        <source>&amp;Rolls</source>
        <translation>&amp;Tiradas</translation>
    </message>
    <message>
        <source>&amp;Bet changes</source>
        <translation>Ca&amp;mbios de apuesta</translation>
    </message>
    <message>
        <source>Bets &amp;won</source>
        <translation>Apuestas g&amp;anadas</translation>
    </message>
    <message>
        <source>Bets &amp;lost</source>
        <translation>Apuestas p&amp;erdidas</translation>
    </message>
    <message>
        <source>CheckS&amp;tack changes</source>
        <translation>Cambios de Check&amp;Stack</translation>
    </message>
    <message>
        <source>&amp;Passes and misses</source>
        <translation>&amp;Passes y misses</translation>
    </message>
    <message>
        <source>S&amp;hooter changes</source>
        <translation>Cambios de tira&amp;dor</translation>
    </message>
    <message>
        <source>Ban&amp;kroll changes</source>
        <translation>Cambios de ban&amp;kroll</translation>
    </message>
    <message>
        <source>Record &amp;all</source>
        <translation>Grabar t&amp;odo</translation>
    </message>
    <message>
        <source>&amp;Deselect all</source>
        <translation>&amp;No grabar nada</translation>
    </message>
    <message>
        <source>&amp;Clear log when new sessions start</source>
        <translation>&amp;Vaciar el registro al empezar una sesión</translation>
    </message>
    <message>
        <source>&amp;Scroll new rolls to the top</source>
        <translation>Tiradas nuevas arri&amp;ba</translation>
    </message>
    <message>
        <source>&amp;Follow the end</source>
        <translation>Seguir el &amp;final</translation>
    </message>
    <message>
        <source>Fon&amp;t</source>
        <translation>&amp;Letra</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Cursiva</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Negrita</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>&amp;Menor</translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation>N&amp;ormal</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>M&amp;ayor</translation>
    </message>
    <message>
        <source>In&amp;active</source>
        <translation>&amp;Inactivo</translation>
    </message>
    <message>
        <source>Kind of lines shown</source>
        <translation>Clase de líneas mostradas</translation>
    </message>
    <message>
        <source>Player whose lines are shown</source>
        <translation>Jugador cuyas líneas se muestran</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Texto a buscar</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Buscar el anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Buscar el siguiente</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Parar la búsqueda</translation>
    </message>
    <message>
        <source>All players</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>&amp;Active</source>
        <translation>A&amp;ctivo</translation>
    </message>
    <message>
        <source>Events are recorded</source>
        <translation>Los eventos se graban</translation>
    </message>
    <message>
        <source>Events are not recorded</source>
        <translation>Los eventos no se graban</translation>
    </message>
    <message>
        <source>Events Log (%1, only looked at)</source>
        <translation>Registro de eventos (%1, solo mirado)</translation>
    </message>
    <message>
        <source>Events Log</source>
        <translation>Registro de eventos</translation>
    </message>
    <message>
        <source>Events Log (%1)</source>
        <translation>Registro de eventos (%1)</translation>
    </message>
    <message>
        <source>No lines</source>
        <translation>Sin líneas</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Línea %1 de %2</translation>
    </message>
    <message>
        <source>About line %1 of %2</source>
        <translation>Hacia la línea %1 de %2</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Eventos</translation>
    </message>
    <message>
        <source>Tessaryn Events Log</source>
        <translation>Registro de eventos de Tessaryn</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Print Events Log</source>
        <translation>Imprimir registro de eventos</translation>
    </message>
    <message>
        <source>%1 (%2% read)</source>
        <translation>%1 (%2 % leído)</translation>
    </message>
    <message>
        <source>Saving the log ...</source>
        <translation>Guardando el registro ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>tessaryn::EventsLogView</name>
    <message>
        <source>Lines of the Events Log</source>
        <translation>Líneas del registro de eventos</translation>
    </message>
    <message>
        <source>Line at the top</source>
        <translation>Línea de arriba</translation>
    </message>
    <message>
        <source>Blanks to the left</source>
        <translation>Espacios a la izquierda</translation>
    </message>
    <message>
        <source>No such lines</source>
        <translation>No hay tales líneas</translation>
    </message>
    <message>
        <source>The log is empty</source>
        <translation>El registro está vacío</translation>
    </message>
</context>
<context>
    <name>tessaryn::FindReplaceScreen</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Buscar:</translation>
    </message>
    <message>
        <source>Replace &amp;by:</source>
        <translation>Reemplazar &amp;por:</translation>
    </message>
    <message>
        <source>Find ne&amp;xt</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>Replace &amp;all</source>
        <translation>Reemplazar &amp;todo</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the script.</source>
        <translation>&quot;%1&quot; no está en el script.</translation>
    </message>
    <message numerus="yes">
        <source>%1 replaced</source>
        <translation>
            <numerusform>%1 reemplazado</numerusform>
            <numerusform>%1 reemplazados</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::GeneratorPage</name>
    <message>
        <source>Mersenne Twister, 32 bits a number, a number for each die. The usual choice.</source>
        <translation>Mersenne Twister, 32 bits por número, un número por dado. La elección habitual.</translation>
    </message>
    <message>
        <source>A second Mersenne Twister with a seeding of its own, a number for each die.</source>
        <translation>Un segundo Mersenne Twister con su propia siembra, un número por dado.</translation>
    </message>
    <message>
        <source>A plain congruence with 714,025 states: short, and good for comparing systems on poor dice. Its seeds end at 999,999.</source>
        <translation>Una congruencia simple de 714.025 estados: corta, y buena para comparar sistemas con dados pobres. Sus semillas acaban en 999.999.</translation>
    </message>
    <message>
        <source>One congruence whose numbers are shuffled through a table of 97.</source>
        <translation>Una congruencia cuyos números se barajan con una tabla de 97.</translation>
    </message>
    <message>
        <source>Three congruences: two make the number, the third shuffles a table of 97.</source>
        <translation>Tres congruencias: dos hacen el número, la tercera baraja una tabla de 97.</translation>
    </message>
    <message>
        <source>RNG #1 and RNG #5 by turns, a roll each.</source>
        <translation>RNG #1 y RNG #5 por turnos, una tirada cada uno.</translation>
    </message>
    <message>
        <source>RNG #2 and RNG #4 by turns, a roll each.</source>
        <translation>RNG #2 y RNG #4 por turnos, una tirada cada uno.</translation>
    </message>
    <message>
        <source>As RNG #1, both dice from one number.</source>
        <translation>Como RNG #1, los dos dados de un solo número.</translation>
    </message>
    <message>
        <source>Random number generator</source>
        <translation>Generador de números aleatorios</translation>
    </message>
    <message>
        <source>Random number &amp;generator:</source>
        <translation>&amp;Generador de números aleatorios:</translation>
    </message>
    <message>
        <source>Seed</source>
        <translation>Semilla</translation>
    </message>
    <message>
        <source> Seed normally</source>
        <translation> Semilla normal</translation>
    </message>
    <message>
        <source> User seed</source>
        <translation> Semilla del usuario</translation>
    </message>
    <message>
        <source>The clock gives each seed</source>
        <translation>El reloj da cada semilla</translation>
    </message>
    <message>
        <source>You are asked for each seed</source>
        <translation>Se le pregunta cada semilla</translation>
    </message>
    <message>
        <source> Re-seed new sessions</source>
        <translation> Sembrar en cada sesión nueva</translation>
    </message>
    <message>
        <source>Seed RNG now</source>
        <translation>Sembrar ahora</translation>
    </message>
    <message>
        <source>Last entered seed:</source>
        <translation>Última semilla escrita:</translation>
    </message>
</context>
<context>
    <name>tessaryn::GraphView</name>
    <message>
        <source>Bankroll graph</source>
        <translation>Gráfico de bankroll</translation>
    </message>
    <message>
        <source>Roll %1:</source>
        <translation>Tirada %1:</translation>
    </message>
</context>
<context>
    <name>tessaryn::HelpWindow</name>
    <message>
        <source>en</source>
        <extracomment>The folder of the translated help pages: two small letters, as de or fr. Not a word.</extracomment>
        <translation>es</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Adelante</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Primera página</translation>
    </message>
    <message>
        <source>Show or hide the contents</source>
        <translation>Mostrar u ocultar el contenido</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Letra más pequeña</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Letra más grande</translation>
    </message>
    <message>
        <source>Find in this page</source>
        <translation>Buscar en esta página</translation>
    </message>
    <message>
        <source>Print this page ...</source>
        <translation>Imprimir esta página ...</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Buscar en la ayuda</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Contenido</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Página</translation>
    </message>
    <message>
        <source>The one before</source>
        <translation>El anterior</translation>
    </message>
    <message>
        <source>The next one</source>
        <translation>El siguiente</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Nothing was found for &quot;%1&quot;. Try fewer words, or the beginning of one.</source>
        <translation>No se encontró nada para &quot;%1&quot;. Pruebe con menos palabras, o con el principio de una.</translation>
    </message>
    <message>
        <source>The pages of the help aren&apos;t where the program is. They lie in the folder &quot;docs&quot; of its source and of its packages.</source>
        <translation>Las páginas de la ayuda no están donde está el programa. Están en la carpeta &quot;docs&quot; de sus fuentes y de sus paquetes.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>No está en esta página</translation>
    </message>
</context>
<context>
    <name>tessaryn::HotKeysScreen</name>
    <message>
        <source>Hot-Keys</source>
        <translation>Teclas rápidas</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Auto-Bet file</source>
        <translation>Archivo de Auto-Bet</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>&amp;Tecla:</translation>
    </message>
    <message>
        <source>Auto-Bet &amp;file:</source>
        <translation>&amp;Archivo de Auto-Bet:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Descripción:</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>A&amp;ñadir</translation>
    </message>
    <message>
        <source>&amp;Select ...</source>
        <translation>&amp;Elegir ...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
</context>
<context>
    <name>tessaryn::HousePage</name>
    <message>
        <source>Houses</source>
        <translation>Casas</translation>
    </message>
    <message>
        <source>What the house changes</source>
        <translation>Lo que cambia la casa</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Ajuste</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Mesa</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Casa</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Abrir ...</translation>
    </message>
    <message>
        <source>&amp;Save rules as ...</source>
        <translation>&amp;Guardar reglas como ...</translation>
    </message>
    <message>
        <source>&amp;Use this house</source>
        <translation>&amp;Usar esta casa</translation>
    </message>
    <message>
        <source>The table has these rules.</source>
        <translation>La mesa tiene estas reglas.</translation>
    </message>
</context>
<context>
    <name>tessaryn::JoinScreen</name>
    <message>
        <source>&amp;Join</source>
        <translation>&amp;Entrar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>How much would %1 like to buy-in for?</source>
        <translation>¿Con cuánto quiere entrar %1 en la mesa?</translation>
    </message>
</context>
<context>
    <name>tessaryn::LaboratoryScreen</name>
    <message>
        <source>Laboratory</source>
        <translation>Laboratorio</translation>
    </message>
    <message>
        <source>Sessions played</source>
        <translation>Sesiones jugadas</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Fin</translation>
    </message>
    <message>
        <source>Ends the experiment with what is known</source>
        <translation>Acaba el experimento con lo que se sabe</translation>
    </message>
    <message>
        <source>Comp&amp;are A</source>
        <translation>&amp;Comparar A</translation>
    </message>
    <message>
        <source>System A</source>
        <translation>Sistema A</translation>
    </message>
    <message>
        <source>&amp;with B</source>
        <translation>&amp;con B</translation>
    </message>
    <message>
        <source>System B</source>
        <translation>Sistema B</translation>
    </message>
    <message>
        <source>Pages of the laboratory</source>
        <translation>Páginas del laboratorio</translation>
    </message>
    <message>
        <source>E&amp;xperiment</source>
        <translation>E&amp;xperimento</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Medidas</translation>
    </message>
    <message>
        <source>Res&amp;ults</source>
        <translation>Res&amp;ultados</translation>
    </message>
    <message>
        <source>On the wa&amp;y</source>
        <translation>Por el cami&amp;no</translation>
    </message>
    <message>
        <source>E&amp;nds</source>
        <translation>F&amp;inales</translation>
    </message>
    <message>
        <source>All systems</source>
        <translation>Todos los sistemas</translation>
    </message>
    <message>
        <source>All s&amp;ystems</source>
        <translation>Todos los s&amp;istemas</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sesión</translation>
    </message>
    <message>
        <source>Number of the session</source>
        <translation>Número de la sesión</translation>
    </message>
    <message>
        <source>System of the session</source>
        <translation>Sistema de la sesión</translation>
    </message>
    <message>
        <source>Play it at the &amp;table</source>
        <translation>Jugarla en la m&amp;esa</translation>
    </message>
    <message>
        <source>Puts the session on the table in place of the game, to be watched roll by roll</source>
        <translation>Pone la sesión en la mesa en lugar de la partida, para verla tirada a tirada</translation>
    </message>
    <message>
        <source>Re&amp;port ...</source>
        <translation>Inf&amp;orme ...</translation>
    </message>
    <message>
        <source>of</source>
        <translation>de</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(ninguno)</translation>
    </message>
    <message>
        <source>The first sessions are being played ...</source>
        <translation>Se juegan las primeras sesiones ...</translation>
    </message>
    <message>
        <source>What does a system bring over a whole session?</source>
        <translation>¿Qué da un sistema en toda una sesión?</translation>
    </message>
    <message>
        <source>Add systems, say how sessions end, and run: each session has dice of its own, the same for every system.</source>
        <translation>Añada sistemas, diga cómo acaban las sesiones, y ejecute: cada sesión tiene sus propios dados, los mismos para cada sistema.</translation>
    </message>
    <message>
        <source>Pa&amp;use</source>
        <translation>&amp;Pausa</translation>
    </message>
    <message>
        <source>C&amp;ontinue</source>
        <translation>C&amp;ontinuar</translation>
    </message>
    <message>
        <source>&amp;Run %1</source>
        <translation>E&amp;jecutar %1</translation>
    </message>
    <message>
        <source>Tessaryn Laboratory</source>
        <translation>Laboratorio de Tessaryn</translation>
    </message>
    <message>
        <source>rank by</source>
        <translation>ordenar por</translation>
    </message>
    <message>
        <source>What systems are ranked by</source>
        <translation>Criterio para ordenar los sistemas</translation>
    </message>
    <message>
        <source>Pairs of systems</source>
        <translation>Pares de sistemas</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Pares</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Barrido</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Lo hallado</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Hallado</translation>
    </message>
    <message>
        <source>Add a system</source>
        <translation>Añadir sistema</translation>
    </message>
    <message>
        <source>As command line</source>
        <translation>Como línea de órdenes</translation>
    </message>
    <message>
        <source>System of the sweep</source>
        <translation>Sistema del barrido</translation>
    </message>
    <message>
        <source>Open ...</source>
        <translation>Abrir ...</translation>
    </message>
    <message>
        <source>An experiment that was saved, here or by the command line: to look at, or to go on with</source>
        <translation>Un experimento guardado, aquí o desde la línea de órdenes: para verlo o para continuarlo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>&amp;Experiment ...</source>
        <translation>&amp;Experimento ...</translation>
    </message>
    <message>
        <source>Sessions as &amp;CSV ...</source>
        <translation>Sesiones como &amp;CSV ...</translation>
    </message>
    <message>
        <source>&amp;Sessions Log ...</source>
        <translation>&amp;Registro de sesiones ...</translation>
    </message>
    <message>
        <source>Results as &amp;JSON ...</source>
        <translation>Resultados como &amp;JSON ...</translation>
    </message>
    <message>
        <source>Copy as command &amp;line</source>
        <translation>Copiar como &amp;línea de órdenes</translation>
    </message>
    <message>
        <source>Keeping every session would take %1 GB: take the mark there away, or play fewer.</source>
        <translation>Conservar todas las sesiones ocuparía %1 GB: quite allí la marca o juegue menos.</translation>
    </message>
    <message>
        <source>Looking, always on the same dice ...</source>
        <translation>Buscando, siempre con los mismos dados ...</translation>
    </message>
    <message>
        <source>%1 sessions for each value that is tried, seed %2.</source>
        <translation>%1 sesiones por cada valor probado, semilla %2.</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Sistemas</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Dados</translation>
    </message>
    <message>
        <source>percentage dice, seed %1, the same for all</source>
        <translation>dados de porcentaje, semilla %1, iguales para todos</translation>
    </message>
    <message>
        <source>RNG %1, seed %2, the same for all</source>
        <translation>RNG %1, semilla %2, igual para todos</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>%1 sessions in %2 s</source>
        <translation>%1 sesiones en %2 s</translation>
    </message>
    <message>
        <source>Experiment</source>
        <translation>Experimento</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>&amp;Find it</source>
        <translation>&amp;Hallarlo</translation>
    </message>
    <message>
        <source>&amp;Go on to %1</source>
        <translation>Se&amp;guir hasta %1</translation>
    </message>
    <message>
        <source>Plays more of the same experiment: four times as many sessions halve the bounds</source>
        <translation>Juega más del mismo experimento: con el cuádruple de sesiones los límites se reducen a la mitad</translation>
    </message>
    <message>
        <source>The experiment is open without its single sessions, so there is no CSV and no Sessions Log of it: %1</source>
        <translation>El experimento está abierto sin sus sesiones individuales, por eso no hay CSV ni registro de sesiones de él: %1</translation>
    </message>
    <message>
        <source>Saved; it is kept up to date there from now on.</source>
        <translation>Guardado; desde ahora se mantiene al día ahí.</translation>
    </message>
    <message>
        <source>Saved: a line for each session and system.</source>
        <translation>Guardado: una línea por cada sesión y sistema.</translation>
    </message>
    <message>
        <source>this file is there already; choose another name</source>
        <translation>este archivo ya existe; elija otro nombre</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Guardado.</translation>
    </message>
    <message>
        <source>Saved: a Sessions Log for each system, numbered in their order.</source>
        <translation>Guardado: un registro de sesiones por sistema, numerados en su orden.</translation>
    </message>
    <message>
        <source>There is no command line for this experiment.</source>
        <translation>No hay línea de órdenes para este experimento.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copiado: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::LaboratorySetup</name>
    <message>
        <source>Laboratory</source>
        <translation>Laboratorio</translation>
    </message>
    <message>
        <source>Systems, all on the same dice</source>
        <translation>Sistemas, todos con los mismos dados</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Sistemas</translation>
    </message>
    <message>
        <source>Add s&amp;cript ...</source>
        <translation>Añadir s&amp;cript ...</translation>
    </message>
    <message>
        <source>Add &amp;player&apos;s script</source>
        <translation>Añadir el script del &amp;jugador</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Standing bets</source>
        <translation>Apuestas fijas</translation>
    </message>
    <message>
        <source>Standing bets: passline=10, place6=12</source>
        <translation>Apuestas fijas: passline=10, place6=12</translation>
    </message>
    <message>
        <source>Add &amp;bets</source>
        <translation>Añadir &amp;apuestas</translation>
    </message>
    <message>
        <source>Stakes that CheckStacks start at</source>
        <translation>Valores con que empiezan los CheckStacks</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>Sessions and their ends</source>
        <translation>Sesiones y sus finales</translation>
    </message>
    <message>
        <source>Sess&amp;ions</source>
        <translation>&amp;Sesiones</translation>
    </message>
    <message>
        <source>&amp;Start with $</source>
        <translation>Empe&amp;zar con $</translation>
    </message>
    <message>
        <source>Most r&amp;olls</source>
        <translation>Máximo de &amp;tiradas</translation>
    </message>
    <message>
        <source>any</source>
        <translation>cualquiera</translation>
    </message>
    <message>
        <source>Most &amp;hands</source>
        <translation>Máximo de &amp;manos</translation>
    </message>
    <message>
        <source>&amp;Win goal $</source>
        <translation>Me&amp;ta de ganancia $</translation>
    </message>
    <message>
        <source>&amp;Loss limit $</source>
        <translation>&amp;Límite de pérdida $</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>en el acto</translation>
    </message>
    <message>
        <source>after the hand</source>
        <translation>tras la mano</translation>
    </message>
    <message>
        <source>when no contract bet is up any more</source>
        <translation>cuando ya no hay apuesta bajo contrato</translation>
    </message>
    <message>
        <source>&amp;Ends fall</source>
        <translation>Los &amp;finales caen</translation>
    </message>
    <message>
        <source>&amp;Known to ±$</source>
        <translation>Sa&amp;bido a ±$</translation>
    </message>
    <message>
        <source>Stops as soon as each mean is known so well, 95% sure</source>
        <translation>Para en cuanto cada media se sabe con esa precisión, seguro al 95 %</translation>
    </message>
    <message>
        <source>Table and dice</source>
        <translation>Mesa y dados</translation>
    </message>
    <message>
        <source>See&amp;d</source>
        <translation>Se&amp;milla</translation>
    </message>
    <message>
        <source>The selected player has no script.</source>
        <translation>El jugador elegido no tiene script.</translation>
    </message>
    <message>
        <source>There is nothing to play: add a script, or standing bets.</source>
        <translation>No hay nada que jugar: añada un script o apuestas fijas.</translation>
    </message>
    <message>
        <source>Start with: must be from 0.01 to %1</source>
        <translation>Empezar con: debe ser de 0.01 a %1</translation>
    </message>
    <message>
        <source>CheckStacks s&amp;tart at</source>
        <translation>Chec&amp;kStacks empiezan con</translation>
    </message>
    <message>
        <source>as the scripts have them; or 1=5,10,25; 2=5..50:5</source>
        <translation>como en los scripts; o 1=5,10,25; 2=5..50:5</translation>
    </message>
    <message>
        <source>&amp;Vary settings</source>
        <translation>&amp;Variar ajustes</translation>
    </message>
    <message>
        <source>Settings that are varied</source>
        <translation>Ajustes que se varían</translation>
    </message>
    <message>
        <source>none; or OddsCalcMethod=1,2,3; FieldPreset=...</source>
        <translation>ninguno; u OddsCalcMethod=1,2,3; FieldPreset=...</translation>
    </message>
    <message>
        <source>Most hours</source>
        <translation>Máximo de horas</translation>
    </message>
    <message>
        <source>Of play, by the roll rate in the table&apos;s settings</source>
        <translation>De juego, según el ritmo de tiradas de los ajustes de la mesa</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>Núcleos</translation>
    </message>
    <message>
        <source>How many play at a time; results are the same for any number</source>
        <translation>Cuántos juegan a la vez; los resultados son los mismos con cualquier número</translation>
    </message>
    <message>
        <source>Other settings for all systems</source>
        <translation>Otros ajustes para todos los sistemas</translation>
    </message>
    <message>
        <source>other settings: SimRollRate=120; ...</source>
        <translation>otros ajustes: SimRollRate=120; ...</translation>
    </message>
    <message>
        <source>Keep every session</source>
        <translation>Conservar cada sesión</translation>
    </message>
    <message>
        <source>For CSV and Sessions Logs; takes 350 bytes of disk for each</source>
        <translation>Para CSV y registros de sesiones; cada una ocupa 350 bytes de disco</translation>
    </message>
    <message>
        <source>What is asked</source>
        <translation>Qué se pregunta</translation>
    </message>
    <message>
        <source>What sessions bring</source>
        <translation>Lo que dan las sesiones</translation>
    </message>
    <message>
        <source>The least bankroll</source>
        <translation>El bankroll mínimo</translation>
    </message>
    <message>
        <source>The largest stake</source>
        <translation>La mayor apuesta</translation>
    </message>
    <message>
        <source>Ruined at most</source>
        <translation>Ruina como mucho</translation>
    </message>
    <message>
        <source>CheckStack number</source>
        <translation>Número de CheckStack</translation>
    </message>
    <message>
        <source>The share of sessions that may be ruined</source>
        <translation>La proporción de sesiones que pueden arruinarse</translation>
    </message>
    <message>
        <source>Whose largest start is looked for</source>
        <translation>Del que se busca el mayor inicio</translation>
    </message>
    <message>
        <source>Stakes</source>
        <translation>Valores</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Otros ajustes</translation>
    </message>
    <message>
        <source>Say how long a session may last: rolls, hands or hours.</source>
        <translation>Diga cuánto puede durar una sesión: tiradas, manos u horas.</translation>
    </message>
    <message>
        <source>Rules and dice</source>
        <translation>Reglas y dados</translation>
    </message>
    <message>
        <source>Rules and dice of this table</source>
        <translation>Reglas y dados de esta mesa</translation>
    </message>
    <message>
        <source>Rules and dice of a new table</source>
        <translation>Reglas y dados de una mesa nueva</translation>
    </message>
    <message>
        <source>Rules and dice of the opened file</source>
        <translation>Reglas y dados del archivo abierto</translation>
    </message>
</context>
<context>
    <name>tessaryn::LooksPage</name>
    <message>
        <source>Green</source>
        <translation>Verde</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Azul</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Verde azulado</translation>
    </message>
    <message>
        <source>Burgundy</source>
        <translation>Burdeos</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Púrpura</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Tan</source>
        <translation>Arena</translation>
    </message>
    <message>
        <source>Cloth</source>
        <translation>Paño</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Mesa</translation>
    </message>
    <message>
        <source>Lettering</source>
        <translation>Letras</translation>
    </message>
    <message>
        <source>Rail</source>
        <translation>Riel</translation>
    </message>
    <message>
        <source>Round the table</source>
        <translation>Alrededor de la mesa</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Fichas</translation>
    </message>
    <message>
        <source>First check</source>
        <translation>Primera ficha</translation>
    </message>
    <message>
        <source>Second check</source>
        <translation>Segunda ficha</translation>
    </message>
    <message>
        <source>Third check</source>
        <translation>Tercera ficha</translation>
    </message>
    <message>
        <source>Fourth check</source>
        <translation>Cuarta ficha</translation>
    </message>
    <message>
        <source>Fifth check</source>
        <translation>Quinta ficha</translation>
    </message>
    <message>
        <source>&quot;$&quot; check</source>
        <translation>Ficha &quot;$&quot;</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Dados</translation>
    </message>
    <message>
        <source>First die</source>
        <translation>Primer dado</translation>
    </message>
    <message>
        <source>Second die</source>
        <translation>Segundo dado</translation>
    </message>
    <message>
        <source>Pips</source>
        <translation>Puntos del dado</translation>
    </message>
    <message>
        <source>All as at first</source>
        <translation>Todo como al principio</translation>
    </message>
    <message>
        <source>Another color</source>
        <translation>Otro color</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Textura</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Foco</translation>
    </message>
    <message>
        <source>Lettering in a font of my own</source>
        <translation>Letras en una fuente propia</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Claro u oscuro</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>No motion</source>
        <translation>Sin movimiento</translation>
    </message>
    <message>
        <source>Notes in boxes</source>
        <translation>Notas en cuadros</translation>
    </message>
</context>
<context>
    <name>tessaryn::LuckWindow</name>
    <message>
        <source>Luck</source>
        <translation>Suerte</translation>
    </message>
    <message>
        <source>Expected: what the bets made cost or bring on average, under the rules and dice in force. Luck is what the dice gave beyond it. Price: what was given away, in percent of what was decided.</source>
        <translation>Esperado: lo que las apuestas hechas cuestan o dan de media, con las reglas y los dados en vigor. La suerte es lo que los dados dieron de más. Precio: lo que se cedió, en por ciento de lo decidido.</translation>
    </message>
    <message>
        <source>Luck of the players</source>
        <translation>Suerte de los jugadores</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Jugador</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Esperado</translation>
    </message>
    <message>
        <source>Came</source>
        <translation>Llegado</translation>
    </message>
    <message>
        <source>Std. deviation</source>
        <translation>Desv. est.</translation>
    </message>
    <message>
        <source>Luck in std. dev.</source>
        <translation>Suerte en desv. est.</translation>
    </message>
    <message>
        <source>Decided</source>
        <translation>Decidido</translation>
    </message>
    <message>
        <source>Price %</source>
        <translation>Precio %</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Tiradas</translation>
    </message>
    <message>
        <source>Not counted</source>
        <translation>No contadas</translation>
    </message>
    <message>
        <source>Rolls with bets up that were counted, and rolls that were not: those of a Turbo-Roll are counted while this window is open.</source>
        <translation>Tiradas contadas con apuestas puestas, y tiradas no contadas: las de un Turbo-Roll cuentan mientras esta ventana está abierta.</translation>
    </message>
</context>
<context>
    <name>tessaryn::MainWindow</name>
    <message>
        <source>Tessaryn Turbo-Roll Stopped</source>
        <translation>Turbo-Roll de Tessaryn detenido</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Tirada %1</translation>
    </message>
    <message>
        <source>Come-out</source>
        <translation>Come-out</translation>
    </message>
    <message>
        <source>Point %1</source>
        <translation>Punto %1</translation>
    </message>
    <message>
        <source>Shooter: %1</source>
        <translation>Tirador: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::MessageScreen</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;Aceptar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
</context>
<context>
    <name>tessaryn::MovePanel</name>
    <message>
        <source>Move Table</source>
        <translation>Mover la mesa</translation>
    </message>
    <message>
        <source>With Shift or Ctrl: to the window&apos;s border</source>
        <translation>Con Mayús o Ctrl: hasta el borde de la ventana</translation>
    </message>
    <message>
        <source>By 30 degrees; Shift 90, Ctrl 45, both 180</source>
        <translation>30 grados; Mayús 90, Ctrl 45, ambas 180</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Hacia arriba</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Hacia la izquierda</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Hacia la derecha</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Hacia abajo</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>The table into the middle of the window</source>
        <translation>La mesa al centro de la ventana</translation>
    </message>
    <message>
        <source>Turn clockwise</source>
        <translation>Girar a la derecha</translation>
    </message>
    <message>
        <source>Turn counterclockwise</source>
        <translation>Girar a la izquierda</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reducir</translation>
    </message>
    <message>
        <source>Shift: to the window&apos;s height; Ctrl: to its width; both: to the limit</source>
        <translation>Mayús: al alto de la ventana; Ctrl: a su ancho; ambas: al límite</translation>
    </message>
</context>
<context>
    <name>tessaryn::NewSessionScreen</name>
    <message>
        <source>New Session</source>
        <translation>Sesión nueva</translation>
    </message>
    <message>
        <source>All bets are taken down and a new session starts.</source>
        <translation>Se retiran todas las apuestas y empieza una sesión nueva.</translation>
    </message>
    <message>
        <source> Preserve dice roll file</source>
        <translation> Conservar el archivo de tiradas</translation>
    </message>
    <message>
        <source> Rewind and playback</source>
        <translation> Rebobinar y reproducir</translation>
    </message>
    <message>
        <source> Continue </source>
        <translation> Continuar </translation>
    </message>
    <message>
        <source> Preserve auto-bet scripts</source>
        <translation> Conservar los scripts de Auto-Bet</translation>
    </message>
    <message>
        <source> Preserve previous sessions data</source>
        <translation> Conservar los datos de sesiones anteriores</translation>
    </message>
    <message>
        <source> Preserve checkstacks</source>
        <translation> Conservar los CheckStacks</translation>
    </message>
    <message>
        <source> Preserve sessions logs</source>
        <translation> Conservar los registros de sesiones</translation>
    </message>
</context>
<context>
    <name>tessaryn::PadGrid</name>
    <message>
        <source>Roll a %1</source>
        <translation>Tirar un %1</translation>
    </message>
    <message>
        <source>Roll %1 and %2</source>
        <translation>Tirar %1 y %2</translation>
    </message>
    <message>
        <source>First die %1</source>
        <translation>Primer dado %1</translation>
    </message>
    <message>
        <source>Second die %1</source>
        <translation>Segundo dado %1</translation>
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
        <translation>Siete en el come-out</translation>
    </message>
    <message>
        <source>Seven after the point</source>
        <translation>Siete después del punto</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>%1 o más</translation>
    </message>
    <message numerus="yes">
        <source>%1 points made</source>
        <translation>
            <numerusform>%1 punto hecho</numerusform>
            <numerusform>%1 puntos hechos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 line wins</source>
        <translation>
            <numerusform>%1 victoria de línea</numerusform>
            <numerusform>%1 victorias de línea</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 different points</source>
        <translation>
            <numerusform>%1 punto distinto</numerusform>
            <numerusform>%1 puntos distintos</numerusform>
        </translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Apuestas</translation>
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
        <translation>&amp;Field con 2x en Two y Twelve</translation>
    </message>
    <message>
        <source>&amp;Pass Line</source>
        <translation>&amp;Pass Line</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Pass (bar 12)</source>
        <translation>&amp;Don&apos;t Pass (barra 12)</translation>
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
        <translation>Buy &amp;10 (vig 5 %)</translation>
    </message>
    <message>
        <source>Lay &amp;4 (5% vig on win only)</source>
        <translation>Lay &amp;4 (vig 5 % solo al ganar)</translation>
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
        <translation>Apuesta</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Paga</translation>
    </message>
    <message>
        <source>to/for</source>
        <translation>to/for</translation>
    </message>
    <message>
        <source>Per</source>
        <translation>Por</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Nota</translation>
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
        <translation>aún no aceptado</translation>
    </message>
    <message>
        <source>originally %1</source>
        <translation>de origen %1</translation>
    </message>
    <message>
        <source>Payoffs of</source>
        <translation>Pagos de</translation>
    </message>
    <message>
        <source>Payoffs &amp;of</source>
        <translation>&amp;Pagos de</translation>
    </message>
    <message>
        <source>Payoffs</source>
        <translation>Pagos</translation>
    </message>
    <message>
        <source>Enter goes from number to number; t and f write the word between them.</source>
        <translation>Intro va de número en número; t y f escriben la palabra entre ellos.</translation>
    </message>
    <message>
        <source>&amp;Set Field payoffs to</source>
        <translation>Poner los pagos del &amp;Field a</translation>
    </message>
    <message>
        <source>&amp;Restore default payoffs</source>
        <translation>&amp;Restaurar los pagos de origen</translation>
    </message>
    <message>
        <source>Payoff of %1</source>
        <translation>Pago de %1</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>Bet or outcome</source>
        <translation>Apuesta o resultado</translation>
    </message>
</context>
<context>
    <name>tessaryn::PercentageDiceWindow</name>
    <message>
        <source>Percentage Dice</source>
        <translation>Dados de porcentaje</translation>
    </message>
    <message>
        <source>Die 1 \ Die 2</source>
        <translation>Dado 1 \ Dado 2</translation>
    </message>
    <message>
        <source>Die 2</source>
        <translation>Dado 2</translation>
    </message>
    <message>
        <source>Die 1</source>
        <translation>Dado 1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Probability</source>
        <translation>Probabilidad</translation>
    </message>
    <message>
        <source>Probability file: %1</source>
        <translation>Archivo de probabilidades: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::PermissionsScreen</name>
    <message>
        <source>Auto-Bet Permissions</source>
        <translation>Permisos de Auto-Bet</translation>
    </message>
    <message>
        <source>%1&apos;s script may:</source>
        <translation>El script de %1 puede:</translation>
    </message>
    <message>
        <source>act for &amp;other players</source>
        <translation>actuar por &amp;otros jugadores</translation>
    </message>
    <message>
        <source>start new &amp;sessions</source>
        <translation>empezar &amp;sesiones nuevas</translation>
    </message>
    <message>
        <source>activate and deactivate &amp;probability files and dice roll files</source>
        <translation>activar y desactivar &amp;archivos de probabilidades y de tiradas</translation>
    </message>
</context>
<context>
    <name>tessaryn::PlayerChoice</name>
    <message>
        <source>Player</source>
        <translation>Jugador</translation>
    </message>
</context>
<context>
    <name>tessaryn::ProbabilityPage</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Abrir ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Guardar &amp;como ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Lock or unlock the cell	L</source>
        <translation>&amp;Bloquear o liberar la casilla	L</translation>
    </message>
    <message>
        <source>&amp;Shooter&apos;s effectiveness ...</source>
        <translation>&amp;Eficacia del tirador ...</translation>
    </message>
    <message>
        <source>Ready &amp;dice</source>
        <translation>&amp;Dados preparados</translation>
    </message>
    <message>
        <source>E&amp;ven Out</source>
        <translation>&amp;Igualar</translation>
    </message>
    <message>
        <source>Keeps this cell&apos;s value; what isn&apos;t locked shares the rest equally</source>
        <translation>Conserva el valor de esta casilla; lo no bloqueado se reparte el resto por igual</translation>
    </message>
    <message>
        <source>Nothing is free to share the rest.</source>
        <translation>No queda nada libre para repartir el resto.</translation>
    </message>
    <message>
        <source>&amp;Unlock All</source>
        <translation>&amp;Liberar todo</translation>
    </message>
    <message>
        <source>Percentage dice in use</source>
        <translation>Dados de porcentaje en uso</translation>
    </message>
    <message>
        <source>Number of rolls</source>
        <translation>Número de tiradas</translation>
    </message>
    <message>
        <source>%1: %2%, fair dice %3%</source>
        <translation>%1: %2 %, dados justos %3 %</translation>
    </message>
    <message>
        <source>. Locked: L unlocks it.</source>
        <translation>. Bloqueado: L lo libera.</translation>
    </message>
    <message>
        <source>. Type a value, L locks.</source>
        <translation>. Escriba un valor, L bloquea.</translation>
    </message>
    <message>
        <source>Nothing is free to take up the difference: the cell keeps its value.</source>
        <translation>No queda nada libre para absorber la diferencia: la casilla conserva su valor.</translation>
    </message>
</context>
<context>
    <name>tessaryn::ProbabilityTable</name>
    <message>
        <source>Probabilities of the dice</source>
        <translation>Probabilidades de los dados</translation>
    </message>
</context>
<context>
    <name>tessaryn::RollFilesWindow</name>
    <message>
        <source>&amp;New / Open ...</source>
        <translation>&amp;Nuevo / Abrir ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Copy To &amp;Roll File ...</source>
        <translation>Copiar a archivo de &amp;tiradas ...</translation>
    </message>
    <message>
        <source>Copy To &amp;Text File ...</source>
        <translation>Copiar a archivo de te&amp;xto ...</translation>
    </message>
    <message>
        <source>Paste &amp;From Roll File ...</source>
        <translation>&amp;Pegar de archivo de tiradas ...</translation>
    </message>
    <message>
        <source>Paste From Te&amp;xt File ...</source>
        <translation>Pe&amp;gar de archivo de texto ...</translation>
    </message>
    <message>
        <source>&amp;Print ...</source>
        <translation>&amp;Imprimir ...</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Pegar</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Borrar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Elegir t&amp;odo</translation>
    </message>
    <message>
        <source>Dice Roll Files</source>
        <translation>Archivos de tiradas</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Highlight</source>
        <translation>Re&amp;saltar</translation>
    </message>
    <message>
        <source>Font &amp;size</source>
        <translation>Tamaño de &amp;letra</translation>
    </message>
    <message>
        <source>&amp;As the screen</source>
        <translation>&amp;Como la pantalla</translation>
    </message>
    <message>
        <source>Entering rolls, and their distribution</source>
        <translation>Entrada de tiradas, y su distribución</translation>
    </message>
    <message>
        <source>Enter %1 and %2</source>
        <translation>Escribir %1 y %2</translation>
    </message>
    <message>
        <source>Enters %1 and %2. In the list: type %1%2</source>
        <translation>Escribe %1 y %2. En la lista: teclee %1%2</translation>
    </message>
    <message>
        <source> Type over</source>
        <translation> Sobrescribir</translation>
    </message>
    <message>
        <source> Insert</source>
        <translation> Insertar</translation>
    </message>
    <message>
        <source>Ran&amp;dom</source>
        <translation>Al a&amp;zar</translation>
    </message>
    <message>
        <source>&amp;Output format:</source>
        <translation>&amp;Formato de salida:</translation>
    </message>
    <message>
        <source>Roll#, Die1, Die2 and Total stand for the values; all else is copied as it is</source>
        <translation>Roll#, Die1, Die2 y Total representan los valores; todo lo demás se copia tal cual</translation>
    </message>
    <message>
        <source>■ Off</source>
        <translation>■ Apagado</translation>
    </message>
    <message>
        <source>● Record</source>
        <translation>● Grabar</translation>
    </message>
    <message>
        <source>▶ Playback</source>
        <translation>▶ Reproducir</translation>
    </message>
    <message>
        <source>Recorder off</source>
        <translation>Grabadora apagada</translation>
    </message>
    <message>
        <source>Record the game&apos;s rolls</source>
        <translation>Grabar las tiradas de la partida</translation>
    </message>
    <message>
        <source>Play the file&apos;s rolls</source>
        <translation>Jugar las tiradas del archivo</translation>
    </message>
    <message>
        <source>Next roll &amp;is roll #</source>
        <translation>La &amp;próxima tirada es la n.º</translation>
    </message>
    <message>
        <source>No file open</source>
        <translation>Ningún archivo abierto</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 tirada</numerusform>
            <numerusform>%1 tiradas</numerusform>
        </translation>
    </message>
    <message>
        <source>Roll 12, 3 and 4: %1</source>
        <translation>Tirada 12, 3 y 4: %1</translation>
    </message>
    <message>
        <source>No die and no total in it</source>
        <translation>Ni dado ni total en él</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls counted ...</source>
        <translation>
            <numerusform>%1 tirada contada ...</numerusform>
            <numerusform>%1 tiradas contadas ...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %1 rolls</source>
        <translation>
            <numerusform>La única tirada: %1</numerusform>
            <numerusform>Las %1 tiradas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 selected rolls</source>
        <translation>
            <numerusform>%1 tirada elegida</numerusform>
            <numerusform>Las %1 tiradas elegidas</numerusform>
        </translation>
    </message>
    <message>
        <source>Print Dice Rolls</source>
        <translation>Imprimir tiradas</translation>
    </message>
    <message>
        <source>Roll file:  %1</source>
        <translation>Archivo de tiradas:  %1</translation>
    </message>
    <message>
        <source>Rolls: %1</source>
        <translation>Tiradas: %1</translation>
    </message>
    <message>
        <source>Number of rolls to be printed: %1</source>
        <translation>Número de tiradas a imprimir: %1</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, %2 elegidas</translation>
    </message>
    <message>
        <source>%1 · % · hatched: fair</source>
        <translation>%1 · % · rayado: justo</translation>
    </message>
</context>
<context>
    <name>tessaryn::RollList</name>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Nada</translation>
    </message>
    <message>
        <source>&amp;Sevens</source>
        <translation>&amp;Sietes</translation>
    </message>
    <message>
        <source>&amp;Craps: 2, 3 and 12</source>
        <translation>&amp;Craps: 2, 3 y 12</translation>
    </message>
    <message>
        <source>&amp;Point numbers</source>
        <translation>Números de &amp;punto</translation>
    </message>
    <message>
        <source>Si&amp;x and eight</source>
        <translation>Seis &amp;y ocho</translation>
    </message>
    <message>
        <source>P&amp;airs</source>
        <translation>Pa&amp;res</translation>
    </message>
    <message>
        <source>First roll shown</source>
        <translation>Primera tirada mostrada</translation>
    </message>
    <message>
        <source>No dice roll file is open.
File, New or Open begins.</source>
        <translation>No hay ningún archivo de tiradas abierto.
Archivo, Nuevo o Abrir para empezar.</translation>
    </message>
    <message>
        <source>end of file</source>
        <translation>fin del archivo</translation>
    </message>
    <message>
        <source>No dice roll file is open</source>
        <translation>No hay ningún archivo de tiradas abierto</translation>
    </message>
    <message>
        <source>Dice rolls, next roll %1 of %2</source>
        <translation>Tiradas, próxima tirada %1 de %2</translation>
    </message>
    <message>
        <source>%1, rolls %2 to %3 selected</source>
        <translation>%1, tiradas %2 a %3 elegidas</translation>
    </message>
</context>
<context>
    <name>tessaryn::RollPad</name>
    <message>
        <source>&amp;Random Roll</source>
        <translation>Tirada al a&amp;zar</translation>
    </message>
    <message>
        <source>Roll Your Own Numbers</source>
        <translation>Tirar sus propios números</translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation>Velocidad de la serie</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Tirada %1</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Ocultar</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>Roll &amp;counter</source>
        <translation>&amp;Contador de tiradas</translation>
    </message>
    <message>
        <source>&amp;Turbo-Roll button</source>
        <translation>Botón de &amp;Turbo-Roll</translation>
    </message>
    <message>
        <source>&amp;Random button</source>
        <translation>Botón del a&amp;zar</translation>
    </message>
    <message>
        <source>Set Auto-Roll t&amp;ime delay ...</source>
        <translation>&amp;Pausa de Auto-Roll ...</translation>
    </message>
    <message>
        <source>Set Auto-&amp;Stop ...</source>
        <translation>Parada &amp;automática ...</translation>
    </message>
</context>
<context>
    <name>tessaryn::RunControls</name>
    <message>
        <source>R&amp;oll</source>
        <translation>&amp;Tirar</translation>
    </message>
    <message>
        <source>Pass dice</source>
        <translation>Pasar</translation>
    </message>
    <message>
        <source>Roll the dice (F2, or right click on the table)</source>
        <translation>Tirar los dados (F2, o clic derecho en la mesa)</translation>
    </message>
    <message>
        <source>Pass the dice (P)</source>
        <translation>Pasar los dados (P)</translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation>Velocidad de la serie</translation>
    </message>
    <message>
        <source>How fast a run goes: full speed on the left, Auto-Roll on the right</source>
        <translation>La velocidad de una serie: a toda velocidad a la izquierda, Auto-Roll a la derecha</translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsHistogram</name>
    <message>
        <source># S e s s i o n s</source>
        <translation>N . º   d e   s e s i o n e s</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>media</translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions</source>
        <translation>
            <numerusform>%1 sesión</numerusform>
            <numerusform>%1 sesiones</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3, %4% at or below</source>
        <translation>%1 a %2: %3, %4 % hasta ahí</translation>
    </message>
    <message>
        <source>No sessions</source>
        <translation>Sin sesiones</translation>
    </message>
    <message>
        <source>Histogram of the sessions</source>
        <translation>Histograma de las sesiones</translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsLogScreen</name>
    <message>
        <source>Lo&amp;g</source>
        <translation>&amp;Registro</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>N&amp;ew (all players)</source>
        <translation>N&amp;uevo (todos los jugadores)</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Abrir ...</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>&amp;Guardar como ...</translation>
    </message>
    <message>
        <source>&amp;Merge ...</source>
        <translation>&amp;Fusionar ...</translation>
    </message>
    <message>
        <source>&amp;Delete ...</source>
        <translation>B&amp;orrar ...</translation>
    </message>
    <message>
        <source>Delete a&amp;ll ...</source>
        <translation>Borrar &amp;todo ...</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Buscar ...</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>A&amp;nterior</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>O&amp;pciones</translation>
    </message>
    <message>
        <source>Set &amp;break-point ...</source>
        <translation>Poner un &amp;límite ...</translation>
    </message>
    <message>
        <source>Graph bar &amp;width</source>
        <translation>Anc&amp;ho de las barras</translation>
    </message>
    <message>
        <source>&amp;Fine</source>
        <translation>&amp;Fino</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation>&amp;Medio</translation>
    </message>
    <message>
        <source>&amp;Wide</source>
        <translation>&amp;Ancho</translation>
    </message>
    <message>
        <source>&amp;Extra wide</source>
        <translation>Muy an&amp;cho</translation>
    </message>
    <message>
        <source>&amp;Normal curve</source>
        <translation>Curva &amp;normal</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Jugador</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Medida</translation>
    </message>
    <message>
        <source> Histogram</source>
        <translation> Histograma</translation>
    </message>
    <message>
        <source> Data</source>
        <translation> Datos</translation>
    </message>
    <message>
        <source>How much of the log has been read</source>
        <translation>Cuánto del registro se ha leído</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Net $</source>
        <translation>Neto $</translation>
    </message>
    <message>
        <source>Handle $</source>
        <translation>Volumen $</translation>
    </message>
    <message>
        <source>Advantage %</source>
        <translation>Ventaja %</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Ganadas</translation>
    </message>
    <message>
        <source>Broke-even</source>
        <translation>Igualadas</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdidas</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>These sessions take part</source>
        <translation>Estas sesiones cuentan</translation>
    </message>
    <message>
        <source>Leave out outliers</source>
        <translation>Dejar fuera los extremos</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>A</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valor</translation>
    </message>
    <message>
        <source>standard deviations</source>
        <translation>desviaciones estándar</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Deviations</source>
        <translation>Desviaciones</translation>
    </message>
    <message>
        <source>Lowest value that takes part</source>
        <translation>Menor valor que cuenta</translation>
    </message>
    <message>
        <source>Highest value that takes part</source>
        <translation>Mayor valor que cuenta</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>From, to</source>
        <translation>De, a</translation>
    </message>
    <message>
        <source>Searching ...</source>
        <translation>Buscando ...</translation>
    </message>
    <message>
        <source>The figures are not of this choice: the calculation was cancelled.</source>
        <translation>Las cifras no son las de esta elección: se canceló el cálculo.</translation>
    </message>
    <message>
        <source>The statistics could not be calculated.</source>
        <translation>No se pudieron calcular las estadísticas.</translation>
    </message>
    <message>
        <source>&amp;Calculate</source>
        <translation>Ca&amp;lcular</translation>
    </message>
    <message>
        <source>no player</source>
        <translation>ningún jugador</translation>
    </message>
    <message>
        <source>Sessions Log (%1)</source>
        <translation>Registro de sesiones (%1)</translation>
    </message>
    <message>
        <source>Near the middle one of the values, which is not known</source>
        <translation>Cerca del medio, uno de los valores, no se sabe cuál</translation>
    </message>
    <message>
        <source>Break-point: %1</source>
        <translation>Límite: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions</source>
        <translation>
            <numerusform>%1 sesión</numerusform>
            <numerusform>%1 sesiones</numerusform>
        </translation>
    </message>
    <message>
        <source>Statistic</source>
        <translation>Estadística</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Tessaryn Sessions Log</source>
        <translation>Registro de sesiones de Tessaryn</translation>
    </message>
    <message>
        <source>Player:  %1</source>
        <translation>Jugador:  %1</translation>
    </message>
    <message>
        <source>Log:  %1</source>
        <translation>Registro:  %1</translation>
    </message>
    <message>
        <source>Values from %1 to %2</source>
        <translation>Valores de %1 a %2</translation>
    </message>
    <message>
        <source>Print Sessions Log Raw Data</source>
        <translation>Imprimir los datos del registro de sesiones</translation>
    </message>
    <message>
        <source>Print Sessions Log</source>
        <translation>Imprimir registro de sesiones</translation>
    </message>
    <message>
        <source>Number of sessions: %1</source>
        <translation>Número de sesiones: %1</translation>
    </message>
    <message>
        <source>Number of pages: %1</source>
        <translation>Número de páginas: %1</translation>
    </message>
    <message>
        <source>Saving the log ...</source>
        <translation>Guardando el registro ...</translation>
    </message>
    <message>
        <source>Merging the logs ...</source>
        <translation>Fusionando los registros ...</translation>
    </message>
    <message>
        <source>Deleting sessions ...</source>
        <translation>Borrando sesiones ...</translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsRows</name>
    <message>
        <source>Sessions</source>
        <translation>Sesiones</translation>
    </message>
    <message>
        <source>Session at the top</source>
        <translation>Sesión de arriba</translation>
    </message>
    <message>
        <source>Session #</source>
        <translation>Sesión n.º</translation>
    </message>
    <message>
        <source># Rolls</source>
        <translation>N.º de tiradas</translation>
    </message>
    <message>
        <source>Include</source>
        <translation>Incluir</translation>
    </message>
    <message>
        <source>Standard Deviations</source>
        <translation>Desviaciones estándar</translation>
    </message>
    <message>
        <source>No sessions</source>
        <translation>Sin sesiones</translation>
    </message>
</context>
<context>
    <name>tessaryn::SettleBetScreen</name>
    <message>
        <source>&amp;Take Bet and Winnings</source>
        <translation>&amp;Tomar apuesta y ganancias</translation>
    </message>
    <message>
        <source>&amp;Same Bet - Take Winnings</source>
        <translation>&amp;Misma apuesta - tomar ganancias</translation>
    </message>
    <message>
        <source>Press 1 &amp;Unit - Add $%1 to Bet</source>
        <translation>Subir 1 &amp;unidad - $%1 más</translation>
    </message>
    <message>
        <source>Press - Add Winnings to &amp;Double Bet</source>
        <translation>Subir - &amp;doblar con las ganancias</translation>
    </message>
    <message>
        <source>Parlay - Add &amp;All Winnings to Bet</source>
        <translation>Parlay - t&amp;odas las ganancias a la apuesta</translation>
    </message>
    <message>
        <source>Sa&amp;me Bet:</source>
        <translation>Misma apue&amp;sta:</translation>
    </message>
    <message>
        <source>&amp;Bet:</source>
        <translation>Apu&amp;esta:</translation>
    </message>
    <message>
        <source>&amp;No Bet/Take Remainder (if any)</source>
        <translation>Sin apuesta/tomar el &amp;resto (si lo hay)</translation>
    </message>
    <message>
        <source>&amp;Same Bet</source>
        <translation>&amp;Misma apuesta</translation>
    </message>
    <message>
        <source>Bet &amp;Remainder (if any)</source>
        <translation>Apostar el re&amp;sto (si lo hay)</translation>
    </message>
    <message>
        <source>Same Bet Plus 1 &amp;Unit - Add $%1 to Bet</source>
        <translation>Misma apuesta más 1 &amp;unidad - $%1 más</translation>
    </message>
    <message>
        <source>&amp;Double Bet</source>
        <translation>&amp;Doblar la apuesta</translation>
    </message>
    <message>
        <source>Half of the bet wins:</source>
        <translation>La mitad de la apuesta gana:</translation>
    </message>
    <message>
        <source>Half of the bet loses:</source>
        <translation>La mitad de la apuesta pierde:</translation>
    </message>
    <message>
        <source>A quarter of the bet wins:</source>
        <translation>Un cuarto de la apuesta gana:</translation>
    </message>
    <message>
        <source>Three quarters of the bet lose:</source>
        <translation>Tres cuartos de la apuesta pierden:</translation>
    </message>
    <message>
        <source>A fifth of the bet wins:</source>
        <translation>Un quinto de la apuesta gana:</translation>
    </message>
    <message>
        <source>Four fifths of the bet lose:</source>
        <translation>Cuatro quintos de la apuesta pierden:</translation>
    </message>
    <message>
        <source>Points made:</source>
        <translation>Puntos hechos:</translation>
    </message>
    <message>
        <source>Line wins:</source>
        <translation>Victorias de línea:</translation>
    </message>
    <message>
        <source>Different points made:</source>
        <translation>Puntos distintos hechos:</translation>
    </message>
    <message>
        <source>Payoff at %1 for %2:</source>
        <translation>Pago a %1 for %2:</translation>
    </message>
    <message>
        <source>Payoff at %1 to %2:</source>
        <translation>Pago a %1 to %2:</translation>
    </message>
    <message>
        <source>Bet:</source>
        <translation>Apuesta:</translation>
    </message>
    <message>
        <source>Bet lost:</source>
        <translation>Apuesta perdida:</translation>
    </message>
    <message>
        <source>%1% vig:</source>
        <translation>Vig del %1 %:</translation>
    </message>
    <message>
        <source>Net payoff:</source>
        <translation>Pago neto:</translation>
    </message>
    <message>
        <source>Net loss:</source>
        <translation>Pérdida neta:</translation>
    </message>
    <message>
        <source>Net payoff (rounded):</source>
        <translation>Pago neto (redondeado):</translation>
    </message>
    <message>
        <source>Net loss (rounded):</source>
        <translation>Pérdida neta (redondeada):</translation>
    </message>
    <message>
        <source>ODDS OFF</source>
        <translation>ODDS OFF</translation>
    </message>
    <message>
        <source>WINNER</source>
        <translation>GANA</translation>
    </message>
    <message>
        <source>LOSER</source>
        <translation>PIERDE</translation>
    </message>
    <message>
        <source>%1, bet %2</source>
        <translation>%1, apuesta %2</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>The odds weren&apos;t working: nothing was won or lost.</source>
        <translation>Las Odds no trabajaban: no se ganó ni se perdió nada.</translation>
    </message>
    <message>
        <source>This bet is over. It comes down with every choice.</source>
        <translation>Esta apuesta ha terminado. Se retira con cualquier elección.</translation>
    </message>
    <message>
        <source>The same &amp;for the rest of this roll</source>
        <translation>Lo mismo para el &amp;resto de esta tirada</translation>
    </message>
    <message>
        <source>All other winners of this roll are treated alike</source>
        <translation>Todas las demás ganadoras de esta tirada se tratan igual</translation>
    </message>
    <message>
        <source>All other losers of this roll are treated alike</source>
        <translation>Todas las demás perdedoras de esta tirada se tratan igual</translation>
    </message>
    <message>
        <source>Don&apos;t as&amp;k again (Auto-Play, F3)</source>
        <translation>No volver a &amp;preguntar (Auto-Play, F3)</translation>
    </message>
    <message>
        <source>Becomes the player&apos;s choice on the Auto-Play screen</source>
        <translation>Pasa a ser la elección del jugador en la pantalla Auto-Play</translation>
    </message>
</context>
<context>
    <name>tessaryn::SettleSheet</name>
    <message>
        <source>the point is set</source>
        <translation>se fija el punto</translation>
    </message>
    <message>
        <source>a natural</source>
        <translation>un natural</translation>
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
        <translation>punto hecho</translation>
    </message>
    <message>
        <source>the point stays %1</source>
        <translation>el punto sigue en %1</translation>
    </message>
    <message>
        <source>Settle the roll</source>
        <translation>Liquidar la tirada</translation>
    </message>
    <message>
        <source>Roll %1: %2, %3</source>
        <translation>Tirada %1: %2, %3</translation>
    </message>
    <message>
        <source>Decided bets</source>
        <translation>Apuestas decididas</translation>
    </message>
    <message>
        <source>%1 lost %2</source>
        <translation>%1 pierde %2</translation>
    </message>
    <message>
        <source>%1 won %2</source>
        <translation>%1 gana %2</translation>
    </message>
    <message>
        <source>WINNER</source>
        <translation>GANA</translation>
    </message>
    <message>
        <source>This bet is over. It comes down with every choice.</source>
        <translation>Esta apuesta ha terminado. Se retira con cualquier elección.</translation>
    </message>
    <message>
        <source>The odds weren&apos;t working: nothing was won or lost.</source>
        <translation>Las Odds no trabajaban: no se ganó ni se perdió nada.</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>Don&apos;t as&amp;k again: keep these choices (Auto-Play, F3)</source>
        <translation>No volver a &amp;preguntar: guardar estas elecciones (Auto-Play, F3)</translation>
    </message>
    <message>
        <source>Each player&apos;s first winner and first loser here become the choices of Auto-Play</source>
        <translation>La primera ganadora y la primera perdedora de cada jugador pasan a ser las elecciones de Auto-Play</translation>
    </message>
    <message>
        <source>One &amp;at a time</source>
        <translation>Una por &amp;una</translation>
    </message>
    <message>
        <source>All &amp;same</source>
        <translation>&amp;Todas igual</translation>
    </message>
    <message>
        <source>The first winner&apos;s choice for all winners, the first loser&apos;s for all losers</source>
        <translation>La elección de la primera ganadora para todas las ganadoras, la de la primera perdedora para todas las perdedoras</translation>
    </message>
    <message>
        <source>&amp;Done (Enter)</source>
        <translation>&amp;Listo (Intro)</translation>
    </message>
    <message>
        <source>Bets decided: %1</source>
        <translation>Apuestas decididas: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::SortChoice</name>
    <message>
        <source>Sort by</source>
        <translation>Ordenar por</translation>
    </message>
    <message>
        <source>Table order</source>
        <translation>Orden de la mesa</translation>
    </message>
</context>
<context>
    <name>tessaryn::TableWidget</name>
    <message>
        <source>Craps table</source>
        <translation>Mesa de craps</translation>
    </message>
    <message>
        <source>Bet amount</source>
        <translation>Importe de la apuesta</translation>
    </message>
</context>
<context>
    <name>tessaryn::ToolDock</name>
    <message>
        <source>Print, copy, place</source>
        <translation>Imprimir, copiar, lugar</translation>
    </message>
    <message>
        <source>A window of its own</source>
        <translation>Ventana propia</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
</context>
<context>
    <name>tessaryn::TurboPanel</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>Turbo-Roll Active</source>
        <translation>Turbo-Roll en marcha</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Tiradas</translation>
    </message>
    <message>
        <source>Rolls a second</source>
        <translation>Tiradas por segundo</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopEditor</name>
    <message>
        <source>Script</source>
        <translation>Script</translation>
    </message>
    <message>
        <source>%1  %2%</source>
        <translation>%1  %2 %</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopSteps</name>
    <message>
        <source>&amp;Wait after each statement</source>
        <translation>&amp;Esperar tras cada instrucción</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Siguiente</translation>
    </message>
    <message>
        <source>&amp;Go on</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>Statements carried out</source>
        <translation>Instrucciones ejecutadas</translation>
    </message>
    <message>
        <source>Auto-Bet Steps</source>
        <translation>Pasos de Auto-Bet</translation>
    </message>
    <message>
        <source>Auto-Bet Steps (%1)</source>
        <translation>Pasos de Auto-Bet (%1)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Línea %1: %2</translation>
    </message>
    <message>
        <source>Values: %1</source>
        <translation>Valores: %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopTrial</name>
    <message>
        <source>Try it</source>
        <translation>Probar</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Tiradas</translation>
    </message>
    <message>
        <source>rolls</source>
        <translation>tiradas</translation>
    </message>
    <message>
        <source>Tr&amp;y it</source>
        <translation>Proba&amp;r</translation>
    </message>
    <message>
        <source>Same &amp;dice again</source>
        <translation>Los mismos &amp;dados otra vez</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>The script runs on a copy of the table; the game stays as it is.</source>
        <translation>El script corre en una copia de la mesa; la partida queda como está.</translation>
    </message>
    <message>
        <source>Bets of the trial</source>
        <translation>Apuestas de la prueba</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Apuesta</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Ganado</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdido</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Neto</translation>
    </message>
    <message>
        <source>Net %</source>
        <translation>Neto %</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>De&amp;tener</translation>
    </message>
    <message>
        <source>%1 of %2 bet</source>
        <translation>%1 de %2 apostado</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls in %2 s</source>
        <translation>
            <numerusform>%1 tirada en %2 s</numerusform>
            <numerusform>%1 tiradas en %2 s</numerusform>
        </translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>detenido</translation>
    </message>
    <message numerus="yes">
        <source>%1 (line %2, %3 times)</source>
        <translation>
            <numerusform>%1 (línea %2, %3 vez)</numerusform>
            <numerusform>%1 (línea %2, %3 veces)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Run before: %1, %2 rolls</source>
        <translation>
            <numerusform>Serie anterior: %1, %2 tirada</numerusform>
            <numerusform>Serie anterior: %1, %2 tiradas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopWatch</name>
    <message>
        <source>Watch</source>
        <translation>Observar</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Add a name</source>
        <translation>Añadir un nombre</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopWindow</name>
    <message>
        <source>Logic</source>
        <translation>Lógica</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>Modifiers</source>
        <translation>Modificadores</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Acciones</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Abrir ...</translation>
    </message>
    <message>
        <source>Sa&amp;mples</source>
        <translation>E&amp;jemplos</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>Save &amp;as ...</source>
        <translation>Guardar &amp;como ...</translation>
    </message>
    <message>
        <source>&amp;Print in colours ...</source>
        <translation>&amp;Imprimir en color ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Buscar ...</translation>
    </message>
    <message>
        <source>&amp;Replace ...</source>
        <translation>&amp;Reemplazar ...</translation>
    </message>
    <message>
        <source>&amp;Copy to</source>
        <translation>&amp;Copiar a</translation>
    </message>
    <message>
        <source>&amp;Paste from</source>
        <translation>&amp;Pegar de</translation>
    </message>
    <message>
        <source>&amp;Words that go on</source>
        <translation>Palabras que &amp;siguen</translation>
    </message>
    <message>
        <source>P&amp;ut in the proposal</source>
        <translation>&amp;Insertar la propuesta</translation>
    </message>
    <message>
        <source>&amp;Meaning of the word</source>
        <translation>Significado &amp;de la palabra</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>E&amp;jecutar</translation>
    </message>
    <message>
        <source>&amp;Check script</source>
        <translation>&amp;Verificar el script</translation>
    </message>
    <message>
        <source>&amp;Activate all scripts</source>
        <translation>&amp;Activar todos los scripts</translation>
    </message>
    <message>
        <source>Run &amp;one cycle</source>
        <translation>Ejecutar un &amp;ciclo</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <translation>&amp;Paso</translation>
    </message>
    <message>
        <source>Run to the c&amp;ursor</source>
        <translation>Hasta el c&amp;ursor</translation>
    </message>
    <message>
        <source>&amp;Break-point</source>
        <translation>Punto de &amp;interrupción</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>De&amp;tener</translation>
    </message>
    <message>
        <source>Tr&amp;y it</source>
        <translation>Proba&amp;r</translation>
    </message>
    <message>
        <source>&amp;Permissions ...</source>
        <translation>Per&amp;misos ...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Show &amp;steps</source>
        <translation>Mostrar los &amp;pasos</translation>
    </message>
    <message>
        <source>&amp;Line numbers</source>
        <translation>&amp;Números de línea</translation>
    </message>
    <message>
        <source>Lists of &amp;words</source>
        <translation>&amp;Listas de palabras</translation>
    </message>
    <message>
        <source>&amp;Auto-indent</source>
        <translation>&amp;Sangría automática</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Ahora: %1</translation>
    </message>
    <message>
        <source>P&amp;layer:</source>
        <translation>Ju&amp;gador:</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Jugador</translation>
    </message>
    <message>
        <source>A&amp;ctive</source>
        <translation>Acti&amp;vo</translation>
    </message>
    <message>
        <source>Check Script</source>
        <translation>Verificar el script</translation>
    </message>
    <message>
        <source>Run one cycle</source>
        <translation>Ejecutar un ciclo</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Paso</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Below the script</source>
        <translation>Bajo el script</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemas</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Palabras</translation>
    </message>
    <message>
        <source>Logged bets</source>
        <translation>Apuestas anotadas</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Words of the language</source>
        <translation>Palabras del lenguaje</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Palabra</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>Log &amp;my bets</source>
        <translation>Anotar &amp;mis apuestas</translation>
    </message>
    <message>
        <source>When they are made</source>
        <translation>Cuando se hacen</translation>
    </message>
    <message>
        <source>As they stand</source>
        <translation>Tal como están</translation>
    </message>
    <message>
        <source>On the come-out</source>
        <translation>En el come-out</translation>
    </message>
    <message>
        <source>After a point</source>
        <translation>Después de un punto</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insertar</translation>
    </message>
    <message>
        <source>Save ...</source>
        <translation>Guardar ...</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vaciar</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Línea %1, columna %2</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 error</translation>
    </message>
    <message>
        <source>Auto-Bet</source>
        <translation>Auto-Bet</translation>
    </message>
    <message>
        <source>Nobody is at the table</source>
        <translation>No hay nadie en la mesa</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>sin título</translation>
    </message>
    <message>
        <source>Auto-Bet - %1 - %2</source>
        <translation>Auto-Bet - %1 - %2</translation>
    </message>
    <message>
        <source>%1, not saved</source>
        <translation>%1, sin guardar</translation>
    </message>
    <message>
        <source>may act for other players</source>
        <translation>puede actuar por otros jugadores</translation>
    </message>
    <message>
        <source>may start sessions</source>
        <translation>puede empezar sesiones</translation>
    </message>
    <message>
        <source>may use files of dice</source>
        <translation>puede usar archivos de dados</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Línea</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Instrucción</translation>
    </message>
    <message>
        <source>&amp;File ...</source>
        <translation>&amp;Archivo ...</translation>
    </message>
    <message>
        <source>Ctrl+. puts in &quot;%1&quot;</source>
        <translation>Ctrl+. inserta &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Problems (1)</source>
        <translation>Problemas (1)</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>&amp;Recientes</translation>
    </message>
    <message>
        <source>&amp;Counts of the lines</source>
        <translation>C&amp;uentas de las líneas</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Ninguno aún</translation>
    </message>
</context>
</TS>
