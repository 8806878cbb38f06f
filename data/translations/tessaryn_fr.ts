<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>AboutScreen</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A craps table to play at, and to test betting systems on.</source>
        <translation>Une table de craps pour jouer et pour éprouver des systèmes de mise.</translation>
    </message>
    <message>
        <source>About Tessaryn</source>
        <translation>À propos de Tessaryn</translation>
    </message>
    <message>
        <source>Programs:  %1
Data:  %2</source>
        <translation>Programmes :  %1
Données :  %2</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3: see LICENSE.</source>
        <translation>Logiciel libre sous licence GNU General Public License, version 3 : voir LICENSE.</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue :</translation>
    </message>
</context>
<context>
    <name>BankrollGraph</name>
    <message>
        <source>rolls</source>
        <translation>lancers</translation>
    </message>
    <message>
        <source>No rolls</source>
        <translation>Aucun lancer</translation>
    </message>
    <message>
        <source>Rolls %1 to %2</source>
        <translation>Lancers %1 à %2</translation>
    </message>
    <message>
        <source>High:  %1  Current:  %2  Low:  %3</source>
        <translation>Haut :  %1  Actuel :  %2  Bas :  %3</translation>
    </message>
    <message>
        <source>%1 roll avg</source>
        <translation>Moyenne sur %1 lancers</translation>
    </message>
    <message>
        <source>All rolls avg</source>
        <translation>Moyenne sur tous les lancers</translation>
    </message>
</context>
<context>
    <name>BetButtons</name>
    <message>
        <source>Undo bet</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Repeat bets</source>
        <translation>Répéter</translation>
    </message>
    <message>
        <source>Full odds</source>
        <translation>Odds max.</translation>
    </message>
</context>
<context>
    <name>BetFacts</name>
    <message>
        <source>one-roll bet</source>
        <translation>mise d&apos;un seul lancer</translation>
    </message>
    <message>
        <source>stays up until it is decided</source>
        <translation>reste jusqu&apos;à être décidée</translation>
    </message>
    <message>
        <source>a contract: it stays up until it is decided</source>
        <translation>un contrat : reste jusqu&apos;à être décidée</translation>
    </message>
    <message>
        <source>on the line: decided by the come-out or by the point</source>
        <translation>sur la ligne : décidée par le come-out ou par le point</translation>
    </message>
    <message>
        <source>odds behind %1</source>
        <translation>Odds derrière %1</translation>
    </message>
    <message>
        <source>goes on over several rolls</source>
        <translation>se joue sur plusieurs lancers</translation>
    </message>
    <message>
        <source>%1 before 7</source>
        <translation>%1 avant 7</translation>
    </message>
    <message>
        <source>7 before %1</source>
        <translation>7 avant %1</translation>
    </message>
    <message>
        <source>7 or 11 on the come-out, then the point before 7</source>
        <translation>7 ou 11 au come-out, puis le point avant 7</translation>
    </message>
    <message>
        <source>2, 3 or 12 on the come-out, then 7 before the point</source>
        <translation>2, 3 ou 12 au come-out, puis 7 avant le point</translation>
    </message>
    <message>
        <source>7 or 11 on the next roll, then its number before 7</source>
        <translation>7 ou 11 au prochain lancer, puis son numéro avant 7</translation>
    </message>
    <message>
        <source>2, 3 or 12 on the next roll, then 7 before its number</source>
        <translation>2, 3 ou 12 au prochain lancer, puis 7 avant son numéro</translation>
    </message>
    <message>
        <source>%1 or 3 on the come-out, then 7 before the point; %2 is barred</source>
        <translation>%1 ou 3 au come-out, puis 7 avant le point ; %2 est barré</translation>
    </message>
    <message>
        <source>%1 or 3 on the next roll, then 7 before its number; %2 is barred</source>
        <translation>%1 ou 3 au prochain lancer, puis 7 avant son numéro ; %2 est barré</translation>
    </message>
    <message>
        <source>the point before 7</source>
        <translation>le point avant 7</translation>
    </message>
    <message>
        <source>7 before the point</source>
        <translation>7 avant le point</translation>
    </message>
    <message>
        <source>%1 on the next roll</source>
        <translation>%1 au prochain lancer</translation>
    </message>
    <message>
        <source>any other roll</source>
        <translation>tout autre lancer</translation>
    </message>
    <message>
        <source>any other roll, but not on %1</source>
        <translation>tout autre lancer, mais pas sur %1</translation>
    </message>
    <message>
        <source>%1 as a pair, before 7 and before any other %1</source>
        <translation>%1 en double, avant 7 et avant tout autre %1</translation>
    </message>
    <message>
        <source>7, or %1 that is no pair</source>
        <translation>7, ou %1 sans double</translation>
    </message>
    <message>
        <source>all of %1 before 7</source>
        <translation>tous les %1 avant 7</translation>
    </message>
    <message>
        <source>7 before the last of them</source>
        <translation>7 avant le dernier d&apos;entre eux</translation>
    </message>
    <message>
        <source>four rolls without a 7</source>
        <translation>quatre lancers sans 7</translation>
    </message>
    <message>
        <source>7 within the four rolls</source>
        <translation>7 dans les quatre lancers</translation>
    </message>
    <message>
        <source>a point, and 7 on the very next roll</source>
        <translation>un point, et 7 au lancer d&apos;après</translation>
    </message>
    <message>
        <source>7 on the come-out, or a point and 7 on the very next roll</source>
        <translation>7 au come-out, ou un point et 7 au lancer d&apos;après</translation>
    </message>
    <message>
        <source>anything else</source>
        <translation>tout le reste</translation>
    </message>
    <message>
        <source>%1 points or more, made before the seven-out</source>
        <translation>%1 points ou plus, réalisés avant le seven-out</translation>
    </message>
    <message>
        <source>%1 passes or more before the seven-out</source>
        <translation>%1 passes ou plus avant le seven-out</translation>
    </message>
    <message>
        <source>%1 different points or more, made before the seven-out</source>
        <translation>%1 points différents ou plus, réalisés avant le seven-out</translation>
    </message>
    <message>
        <source>a seven-out with fewer</source>
        <translation>un seven-out avec moins</translation>
    </message>
    <message>
        <source>half each as Any Craps and Eleven</source>
        <translation>moitié sur Any Craps, moitié sur Eleven</translation>
    </message>
    <message>
        <source>a quarter each as Two, Three, Eleven and Twelve</source>
        <translation>un quart sur chacun de Two, Three, Eleven et Twelve</translation>
    </message>
    <message>
        <source>a fifth each as Two, Three, Seven, Eleven and Twelve</source>
        <translation>un cinquième sur chacun de Two, Three, Seven, Eleven et Twelve</translation>
    </message>
    <message>
        <source>%1% of the bet, charged as it is made</source>
        <translation>%1 % de la mise, prélevé en misant</translation>
    </message>
    <message>
        <source>%1% of the bet, charged when it wins</source>
        <translation>%1 % de la mise, prélevé au gain</translation>
    </message>
    <message>
        <source>%1% of the win, charged as it is made</source>
        <translation>%1 % du gain, prélevé en misant</translation>
    </message>
    <message>
        <source>%1% of the win, charged when it wins</source>
        <translation>%1 % du gain, prélevé au gain</translation>
    </message>
    <message>
        <source>vig: %1</source>
        <translation>vig : %1</translation>
    </message>
    <message>
        <source>pays %1</source>
        <translation>paie %1</translation>
    </message>
    <message>
        <source>minimum %1</source>
        <translation>minimum %1</translation>
    </message>
    <message>
        <source>may still be bet: %1</source>
        <translation>encore possible : %1</translation>
    </message>
    <message>
        <source>edge %1%</source>
        <translation>avantage %1 %</translation>
    </message>
    <message>
        <source>edge %1% a roll</source>
        <translation>avantage %1 % par lancer</translation>
    </message>
    <message>
        <source>not now: %1</source>
        <translation>pas maintenant : %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Wins on: %1</source>
        <translation>Gagne sur : %1</translation>
    </message>
    <message>
        <source>Loses on: %1</source>
        <translation>Perd sur : %1</translation>
    </message>
    <message>
        <source>Pays: %1</source>
        <translation>Paie : %1</translation>
    </message>
    <message>
        <source>Next roll: wins %1, loses %2 in 36</source>
        <translation>Prochain lancer : gagne %1, perd %2 sur 36</translation>
    </message>
    <message>
        <source>Off on the next roll; working it would win %1, lose %2 in 36</source>
        <translation>OFF au prochain lancer ; en jeu elle gagnerait %1, perdrait %2 sur 36</translation>
    </message>
    <message>
        <source>House edge: %1% of the bet</source>
        <translation>Avantage de la maison : %1 % de la mise</translation>
    </message>
    <message>
        <source>House edge: %1% of the bet, a roll</source>
        <translation>Avantage de la maison : %1 % de la mise par lancer</translation>
    </message>
    <message>
        <source>The dice in force never decide it</source>
        <translation>Les dés en vigueur ne la décident jamais</translation>
    </message>
    <message>
        <source>Decided after %1 rolls on average</source>
        <translation>Décidée après %1 lancers en moyenne</translation>
    </message>
    <message>
        <source>Vig: %1</source>
        <translation>Vig : %1</translation>
    </message>
</context>
<context>
    <name>Board</name>
    <message>
        <source>Next click: call a bet ON. A right click ends this</source>
        <translation>Prochain clic : déclarer une mise ON. Un clic droit y met fin</translation>
    </message>
    <message>
        <source>Next click: call a bet OFF. A right click ends this</source>
        <translation>Prochain clic : déclarer une mise OFF. Un clic droit y met fin</translation>
    </message>
    <message>
        <source>Next click: buy a Place bet. A right click ends this</source>
        <translation>Prochain clic : acheter une mise Place. Un clic droit y met fin</translation>
    </message>
    <message>
        <source>Next click: remove a bet. A right click ends this</source>
        <translation>Prochain clic : retirer une mise. Un clic droit y met fin</translation>
    </message>
    <message>
        <source>Next click: take a bet to move it. A right click ends this</source>
        <translation>Prochain clic : prendre une mise à déplacer. Un clic droit y met fin</translation>
    </message>
    <message>
        <source>Next click: put the bet down. A right click ends this</source>
        <translation>Prochain clic : poser la mise. Un clic droit y met fin</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), point stays %5.</source>
        <translation>Lancer %1 : %2 (%3-%4), le point reste %5.</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), the point is %2.</source>
        <translation>Lancer %1 : %2 (%3-%4), le point est %2.</translation>
    </message>
    <message>
        <source>point</source>
        <translation>point</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), point made.</source>
        <translation>Lancer %1 : %2 (%3-%4), point réalisé.</translation>
    </message>
    <message>
        <source>point made</source>
        <translation>point réalisé</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), seven-out.</source>
        <translation>Lancer %1 : %2 (%3-%4), seven-out.</translation>
    </message>
    <message>
        <source>seven-out</source>
        <translation>seven-out</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), natural.</source>
        <translation>Lancer %1 : %2 (%3-%4), natural.</translation>
    </message>
    <message>
        <source>natural</source>
        <translation>natural</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4), craps.</source>
        <translation>Lancer %1 : %2 (%3-%4), craps.</translation>
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
        <translation>DEUX</translation>
    </message>
    <message>
        <source>THREE</source>
        <translation>TROIS</translation>
    </message>
    <message>
        <source>FOUR</source>
        <translation>QUATRE</translation>
    </message>
    <message>
        <source>FIVE</source>
        <translation>CINQ</translation>
    </message>
    <message>
        <source>SIX</source>
        <translation>SIX</translation>
    </message>
    <message>
        <source>SEVEN</source>
        <translation>SEPT</translation>
    </message>
    <message>
        <source>EIGHT</source>
        <translation>HUIT</translation>
    </message>
    <message>
        <source>NINE</source>
        <translation>NEUF</translation>
    </message>
    <message>
        <source>TEN</source>
        <translation>DIX</translation>
    </message>
    <message>
        <source>ELEVEN</source>
        <translation>ONZE</translation>
    </message>
    <message>
        <source>TWELVE</source>
        <translation>DOUZE</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%2 %1</translation>
    </message>
    <message>
        <source>Hand %1</source>
        <translation>Main %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 lancer</numerusform>
            <numerusform>%1 lancers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 points made</source>
        <translation>
            <numerusform>%1 point réalisé</numerusform>
            <numerusform>%1 points réalisés</numerusform>
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
        <translation>&amp;Jouer</translation>
    </message>
    <message>
        <source>&amp;Watch a system</source>
        <translation>&amp;Observer un système</translation>
    </message>
    <message>
        <source>&amp;Study results</source>
        <translation>&amp;Étudier les résultats</translation>
    </message>
    <message>
        <source>&amp;Float all</source>
        <translation>Tout &amp;détacher</translation>
    </message>
    <message>
        <source>&amp;Close all instruments</source>
        <translation>&amp;Fermer tous les instruments</translation>
    </message>
    <message>
        <source>&amp;Key in bet amounts</source>
        <translation>&amp;Saisir les mises au clavier</translation>
    </message>
    <message>
        <source>&amp;Buy a Place bet</source>
        <translation>&amp;Acheter une mise Place</translation>
    </message>
    <message>
        <source>Call a bet &amp;ON</source>
        <translation>Déclarer une mise &amp;ON</translation>
    </message>
    <message>
        <source>Call a bet O&amp;FF</source>
        <translation>Déclarer une &amp;mise OFF</translation>
    </message>
    <message>
        <source>Call all bets O&amp;N</source>
        <translation>Déclarer &amp;toutes les mises ON</translation>
    </message>
    <message>
        <source>&amp;Call all bets OFF</source>
        <translation>Déclarer toutes les mises OF&amp;F</translation>
    </message>
    <message>
        <source>&amp;Take full odds</source>
        <translation>&amp;Prendre toutes les Odds</translation>
    </message>
    <message>
        <source>&amp;Lay full odds</source>
        <translation>&amp;Déposer toutes les Odds</translation>
    </message>
    <message>
        <source>&amp;Remove a bet</source>
        <translation>&amp;Retirer une mise</translation>
    </message>
    <message>
        <source>&amp;Move a bet</source>
        <translation>Dépla&amp;cer une mise</translation>
    </message>
    <message>
        <source>Remove &amp;all bets</source>
        <translation>Retirer to&amp;utes les mises</translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation>&amp;Partie</translation>
    </message>
    <message>
        <source>&amp;Players</source>
        <translation>&amp;Joueurs</translation>
    </message>
    <message>
        <source>&amp;Bets</source>
        <translation>&amp;Mises</translation>
    </message>
    <message>
        <source>&amp;Dice</source>
        <translation>&amp;Dés</translation>
    </message>
    <message>
        <source>A&amp;uto-Bet</source>
        <translation>A&amp;uto-Bet</translation>
    </message>
    <message>
        <source>Stat&amp;istics</source>
        <translation>&amp;Statistiques</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;Roll the dice</source>
        <translation>&amp;Lancer les dés</translation>
    </message>
    <message>
        <source>&amp;Pass the dice</source>
        <translation>&amp;Passer les dés</translation>
    </message>
    <message>
        <source>Roll your &amp;own numbers</source>
        <translation>Lancer ses propres &amp;nombres</translation>
    </message>
    <message>
        <source>Start &amp;Turbo-Roll</source>
        <translation>Démarrer le &amp;Turbo-Roll</translation>
    </message>
    <message>
        <source>Set Auto-Roll time &amp;delay ...</source>
        <translation>&amp;Délai d&apos;Auto-Roll ...</translation>
    </message>
    <message>
        <source>Set Auto-&amp;Stop ...</source>
        <translation>A&amp;rrêt automatique ...</translation>
    </message>
    <message>
        <source>Open pro&amp;bability file ...</source>
        <translation>Ouvrir un fichier de pro&amp;babilités ...</translation>
    </message>
    <message>
        <source>Per&amp;centage dice</source>
        <translation>Dés à pour&amp;centages</translation>
    </message>
    <message>
        <source>Pla&amp;y a dice roll file ...</source>
        <translation>&amp;Jouer un fichier de lancers ...</translation>
    </message>
    <message>
        <source>R&amp;ecord a dice roll file ...</source>
        <translation>Enregistrer &amp;un fichier de lancers ...</translation>
    </message>
    <message>
        <source>C&amp;lose the dice roll file</source>
        <translation>&amp;Fermer le fichier de lancers</translation>
    </message>
    <message>
        <source>Dice roll &amp;files</source>
        <translation>Fichiers de lanc&amp;ers</translation>
    </message>
    <message>
        <source>Percentage dice ed&amp;itor</source>
        <translation>Éditeur de dés à pourcenta&amp;ges</translation>
    </message>
    <message>
        <source>Stop t&amp;he dice roll file</source>
        <translation>Arrêter le fic&amp;hier de lancers</translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation>Nou&amp;velle ...</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Ouvrir ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Enregistrer &amp;sous ...</translation>
    </message>
    <message>
        <source>&amp;Recent games</source>
        <translation>Parties &amp;récentes</translation>
    </message>
    <message>
        <source>&amp;Files in use ...</source>
        <translation>&amp;Fichiers utilisés ...</translation>
    </message>
    <message>
        <source>So&amp;und</source>
        <translation>So&amp;n</translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation>&amp;Configuration</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Keys and mouse</source>
        <translation>&amp;Clavier et souris</translation>
    </message>
    <message>
        <source>&amp;About Tessaryn</source>
        <translation>À &amp;propos de Tessaryn</translation>
    </message>
    <message>
        <source>&amp;Add ...</source>
        <translation>&amp;Ajouter ...</translation>
    </message>
    <message>
        <source>&amp;Rename ...</source>
        <translation>&amp;Renommer ...</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Déplacer</translation>
    </message>
    <message>
        <source>R&amp;emove ...</source>
        <translation>&amp;Enlever ...</translation>
    </message>
    <message>
        <source>A&amp;TM ...</source>
        <translation>Di&amp;stributeur ...</translation>
    </message>
    <message>
        <source>Auto-&amp;Play ...</source>
        <translation>Auto-&amp;Play ...</translation>
    </message>
    <message>
        <source>&amp;Open script ...</source>
        <translation>&amp;Ouvrir un script ...</translation>
    </message>
    <message>
        <source>&amp;Active</source>
        <translation>A&amp;ctif</translation>
    </message>
    <message>
        <source>&amp;Initialize</source>
        <translation>&amp;Initialiser</translation>
    </message>
    <message>
        <source>&amp;Stop auto-betting</source>
        <translation>&amp;Arrêter l&apos;Auto-Bet</translation>
    </message>
    <message>
        <source>Assign a &amp;hot-key ...</source>
        <translation>Attribuer une touc&amp;he ...</translation>
    </message>
    <message>
        <source>Auto-Bet &amp;workshop</source>
        <translation>A&amp;telier Auto-Bet</translation>
    </message>
    <message>
        <source>Hot-&amp;keys</source>
        <translation>Touches de &amp;raccourci</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Résumé</translation>
    </message>
    <message>
        <source>&amp;Hands</source>
        <translation>&amp;Mains</translation>
    </message>
    <message>
        <source>Bet &amp;results</source>
        <translation>Résu&amp;ltats des mises</translation>
    </message>
    <message>
        <source>Bet &amp;trends</source>
        <translation>&amp;Tendances des mises</translation>
    </message>
    <message>
        <source>R&amp;oll totals</source>
        <translation>Totaux &amp;des lancers</translation>
    </message>
    <message>
        <source>Roll &amp;frequencies</source>
        <translation>&amp;Fréquences des lancers</translation>
    </message>
    <message>
        <source>&amp;Bankroll graph</source>
        <translation>Courbe de &amp;bankroll</translation>
    </message>
    <message>
        <source>&amp;CheckStacks</source>
        <translation>&amp;CheckStacks</translation>
    </message>
    <message>
        <source>Sessions &amp;Log</source>
        <translation>&amp;Journal des sessions</translation>
    </message>
    <message>
        <source>&amp;Events Log</source>
        <translation>Journal des é&amp;vénements</translation>
    </message>
    <message>
        <source>L&amp;aboratory</source>
        <translation>L&amp;aboratoire</translation>
    </message>
    <message>
        <source>View %1</source>
        <translation>Vue %1</translation>
    </message>
    <message>
        <source>Bet &amp;amounts</source>
        <translation>&amp;Montants des mises</translation>
    </message>
    <message>
        <source>&amp;Flash the bets</source>
        <translation>&amp;Faire clignoter les mises</translation>
    </message>
    <message>
        <source>&amp;Proposition bets</source>
        <translation>&amp;Propositions</translation>
    </message>
    <message>
        <source>&amp;Move, zoom and rotate</source>
        <translation>&amp;Déplacer, zoomer et tourner</translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>&amp;Rotate by 30 degrees</source>
        <translation>&amp;Tourner de 30 degrés</translation>
    </message>
    <message>
        <source>&amp;Whole table</source>
        <translation>Table &amp;entière</translation>
    </message>
    <message>
        <source>&amp;Left end</source>
        <translation>Bout &amp;gauche</translation>
    </message>
    <message>
        <source>Ri&amp;ght end</source>
        <translation>Bout dr&amp;oit</translation>
    </message>
    <message>
        <source>R&amp;estore view</source>
        <translation>Re&amp;staurer une vue</translation>
    </message>
    <message>
        <source>&amp;Save view</source>
        <translation>&amp;Conserver la vue</translation>
    </message>
    <message>
        <source>Arra&amp;nge</source>
        <translation>Dispositio&amp;n</translation>
    </message>
    <message>
        <source>Lang&amp;uage</source>
        <translation>&amp;Langue</translation>
    </message>
    <message>
        <source>&amp;Undo bet</source>
        <translation>A&amp;nnuler la mise</translation>
    </message>
    <message>
        <source>R&amp;edo bet</source>
        <translation>Rétablir &amp;la mise</translation>
    </message>
    <message>
        <source>Re&amp;peat bets</source>
        <translation>Répéter les m&amp;ises</translation>
    </message>
    <message>
        <source>Full o&amp;dds</source>
        <translation>Tout&amp;es les Odds</translation>
    </message>
    <message>
        <source>&amp;Help for this screen</source>
        <translation>&amp;Aide sur cet écran</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>&amp;Search the help</source>
        <translation>C&amp;hercher dans l&apos;aide</translation>
    </message>
    <message>
        <source>&amp;Settle each roll on one sheet</source>
        <translation>Ré&amp;gler chaque lancer sur une feuille</translation>
    </message>
    <message>
        <source>L&amp;uck</source>
        <translation>Chanc&amp;e</translation>
    </message>
</context>
<context>
    <name>Core</name>
    <message>
        <source>Auto select</source>
        <translation>Choix automatique</translation>
    </message>
    <message>
        <source>X Flat - No Push</source>
        <translation>X simple - sans push</translation>
    </message>
    <message>
        <source>X Flat w/ Minor Push</source>
        <translation>X simple avec petit push</translation>
    </message>
    <message>
        <source>X Flat w/ Color Push</source>
        <translation>X simple avec push de couleur</translation>
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
        <translation>Arrondi normal</translation>
    </message>
    <message>
        <source>Rounded down</source>
        <translation>Arrondi vers le bas</translation>
    </message>
    <message>
        <source>Rounded up</source>
        <translation>Arrondi vers le haut</translation>
    </message>
    <message>
        <source> Charge winning Buy bets only</source>
        <translation> Prélever sur les mises Buy gagnantes</translation>
    </message>
    <message>
        <source> Charge all Buy bets</source>
        <translation> Prélever sur toutes les mises Buy</translation>
    </message>
    <message>
        <source> Charge winning Lay bets only</source>
        <translation> Prélever sur les mises Lay gagnantes</translation>
    </message>
    <message>
        <source> Charge all Lay bets</source>
        <translation> Prélever sur toutes les mises Lay</translation>
    </message>
    <message>
        <source>No bets required to shoot</source>
        <translation>Aucune mise exigée pour lancer</translation>
    </message>
    <message>
        <source>Line bet required to shoot</source>
        <translation>Mise de ligne exigée pour lancer</translation>
    </message>
    <message>
        <source>Any bet required to shoot</source>
        <translation>Une mise quelconque exigée pour lancer</translation>
    </message>
    <message>
        <source> Actions not allowed</source>
        <translation> Actions non permises</translation>
    </message>
    <message>
        <source> Betting limits reached</source>
        <translation> Limites de mise atteintes</translation>
    </message>
    <message>
        <source> Charges and/or change</source>
        <translation> Prélèvements et monnaie</translation>
    </message>
    <message>
        <source> Auto-bet messages normal play</source>
        <translation> Messages Auto-Bet en jeu normal</translation>
    </message>
    <message>
        <source> Auto-bet messages turbo-roll</source>
        <translation> Messages Auto-Bet en Turbo-Roll</translation>
    </message>
    <message>
        <source>Don&apos;t show any info</source>
        <translation>Ne rien afficher</translation>
    </message>
    <message>
        <source>Show amounts only</source>
        <translation>Afficher les montants seulement</translation>
    </message>
    <message>
        <source>Show names only</source>
        <translation>Afficher les noms seulement</translation>
    </message>
    <message>
        <source>Show names and amounts only</source>
        <translation>Afficher les noms et les montants</translation>
    </message>
    <message>
        <source>Show all info</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source> Theoretical house vig</source>
        <translation> Vig théorique de la maison</translation>
    </message>
    <message>
        <source> Total comp action</source>
        <translation> Action totale pour les comps</translation>
    </message>
    <message>
        <source> Average comp action and time</source>
        <translation> Action moyenne et temps</translation>
    </message>
    <message>
        <source> Seed normally</source>
        <translation> Germe normal</translation>
    </message>
    <message>
        <source> User seed</source>
        <translation> Germe de l&apos;utilisateur</translation>
    </message>
    <message>
        <source> Manual</source>
        <translation> Manuel</translation>
    </message>
    <message>
        <source> Auto w/ minor correction</source>
        <translation> Auto avec petite correction</translation>
    </message>
    <message>
        <source> Auto w/ color correction</source>
        <translation> Auto avec correction de couleur</translation>
    </message>
    <message>
        <source> Thrown</source>
        <translation> Lancés</translation>
    </message>
    <message>
        <source> Without motion</source>
        <translation> Sans mouvement</translation>
    </message>
    <message>
        <source> Thrown quickly</source>
        <translation> Lancés vite</translation>
    </message>
    <message>
        <source> Carry the bankroll forward</source>
        <translation> Reporter la bankroll</translation>
    </message>
    <message>
        <source> Begin with this amount</source>
        <translation> Commencer avec ce montant</translation>
    </message>
    <message>
        <source> Ask for the amount</source>
        <translation> Demander le montant</translation>
    </message>
    <message>
        <source>0 by the change, 1 up, 2 down</source>
        <translation>0 selon la monnaie, 1 vers le haut, 2 vers le bas</translation>
    </message>
    <message>
        <source>minimum of bets 1 to 51</source>
        <translation>minimum des mises 1 à 51</translation>
    </message>
    <message>
        <source>minimum of bets 52 to 93</source>
        <translation>minimum des mises 52 à 93</translation>
    </message>
    <message>
        <source>table maximum</source>
        <translation>maximum de la table</translation>
    </message>
    <message>
        <source>most a proposition may pay</source>
        <translation>gain maximal d&apos;une proposition</translation>
    </message>
    <message>
        <source>ceiling of an odds bet</source>
        <translation>plafond d&apos;une mise Odds</translation>
    </message>
    <message>
        <source>ceiling of the Fire bet</source>
        <translation>plafond de la mise Fire</translation>
    </message>
    <message>
        <source>odds multiple on 4 and 10</source>
        <translation>multiple des Odds sur 4 et 10</translation>
    </message>
    <message>
        <source>odds multiple on 5 and 9</source>
        <translation>multiple des Odds sur 5 et 9</translation>
    </message>
    <message>
        <source>odds multiple on 6 and 8</source>
        <translation>multiple des Odds sur 6 et 8</translation>
    </message>
    <message>
        <source>0 auto select, 1 to 5 the method</source>
        <translation>0 choix automatique, 1 à 5 la méthode</translation>
    </message>
    <message>
        <source>12 or 2, barred on the don&apos;t side</source>
        <translation>12 ou 2, barré du côté Don&apos;t</translation>
    </message>
    <message>
        <source>Put bets</source>
        <translation>mises Put</translation>
    </message>
    <message>
        <source>0 none, 1 line bet, 2 any bet needed to shoot</source>
        <translation>0 aucune, 1 mise de ligne, 2 mise quelconque exigée pour lancer</translation>
    </message>
    <message>
        <source>Big 6 and Big 8</source>
        <translation>Big 6 et Big 8</translation>
    </message>
    <message>
        <source>Midway bet</source>
        <translation>mise Midway</translation>
    </message>
    <message>
        <source>special propositions, bets 84 to 89</source>
        <translation>propositions spéciales, mises 84 à 89</translation>
    </message>
    <message>
        <source>Fire bet</source>
        <translation>mise Fire</translation>
    </message>
    <message>
        <source>contract bets go back at a new session</source>
        <translation>les mises sous contrat reviennent à une nouvelle session</translation>
    </message>
    <message>
        <source>what the Field pays; Own once a row of it is another</source>
        <translation>ce que paie le Field ; Own dès qu&apos;une ligne diffère</translation>
    </message>
    <message>
        <source>a fraction, or with % a percentage</source>
        <translation>une fraction, ou avec % un pourcentage</translation>
    </message>
    <message>
        <source>0 normally, 1 down, 2 up</source>
        <translation>0 normal, 1 vers le bas, 2 vers le haut</translation>
    </message>
    <message>
        <source>charge all Buy bets</source>
        <translation>prélever sur toutes les mises Buy</translation>
    </message>
    <message>
        <source>charge all Lay bets</source>
        <translation>prélever sur toutes les mises Lay</translation>
    </message>
    <message>
        <source>rolls per hour</source>
        <translation>lancers par heure</translation>
    </message>
    <message>
        <source>0 fastest to 11; 12 Auto-Roll</source>
        <translation>0 le plus rapide à 11 ; 12 Auto-Roll</translation>
    </message>
    <message>
        <source>seconds between Auto-Rolls</source>
        <translation>secondes entre les Auto-Rolls</translation>
    </message>
    <message>
        <source>rolls, 0 never</source>
        <translation>lancers, 0 jamais</translation>
    </message>
    <message>
        <source>offered to a new player</source>
        <translation>proposée à un nouveau joueur</translation>
    </message>
    <message>
        <source>the ATM works</source>
        <translation>le distributeur fonctionne</translation>
    </message>
    <message>
        <source>amount of an ATM action that names none</source>
        <translation>montant d&apos;une opération au distributeur qui n&apos;en dit pas</translation>
    </message>
    <message>
        <source>bits 1 refusals, 2 bankroll, 4 adjustments, 8 and 16 scripts</source>
        <translation>bits 1 refus, 2 bankroll, 4 ajustements, 8 et 16 scripts</translation>
    </message>
    <message>
        <source>amounts below a dollar are written in cents</source>
        <translation>les montants sous un dollar sont écrits en cents</translation>
    </message>
    <message>
        <source>checks of a bet are changed for the fewest; else they stay as they were bet</source>
        <translation>les jetons d&apos;une mise sont changés pour le moins possible ; sinon ils restent comme misés</translation>
    </message>
    <message>
        <source>the pointer goes to the default button of a box</source>
        <translation>le pointeur va au bouton par défaut d&apos;une boîte</translation>
    </message>
    <message>
        <source>printing in colour</source>
        <translation>imprimer en couleurs</translation>
    </message>
    <message>
        <source>how much the pointer tells</source>
        <translation>ce que dit le pointeur</translation>
    </message>
    <message>
        <source>points: 9 small, 11 the desktop&apos;s own size, 13 large</source>
        <translation>points : 9 petit, 11 taille du bureau, 13 grand</translation>
    </message>
    <message>
        <source>points</source>
        <translation>points</translation>
    </message>
    <message>
        <source>how the dice move</source>
        <translation>comment les dés bougent</translation>
    </message>
    <message>
        <source>sound set, 0 none</source>
        <translation>jeu de sons, 0 aucun</translation>
    </message>
    <message>
        <source>sounds of scripts</source>
        <translation>sons des scripts</translation>
    </message>
    <message>
        <source>silence</source>
        <translation>silence</translation>
    </message>
    <message>
        <source>advantage: zeros are decisions</source>
        <translation>avantage : les nuls sont des décisions</translation>
    </message>
    <message>
        <source>0 theoretical vig, 1 action, 2 action and time</source>
        <translation>0 vig théorique, 1 action, 2 action et temps</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>pour cent</translation>
    </message>
    <message>
        <source>comps ignore percentage dice</source>
        <translation>les comps ignorent les dés à pourcentages</translation>
    </message>
    <message>
        <source>generator number less 1</source>
        <translation>numéro du générateur moins 1</translation>
    </message>
    <message>
        <source>the user is asked for seeds</source>
        <translation>l&apos;utilisateur est interrogé pour le germe</translation>
    </message>
    <message>
        <source>a new session seeds again</source>
        <translation>une nouvelle session germe à nouveau</translation>
    </message>
    <message>
        <source>the Events Log&apos;s master switch</source>
        <translation>interrupteur général du journal des événements</translation>
    </message>
    <message>
        <source>Events Log class</source>
        <translation>classe du journal des événements</translation>
    </message>
    <message>
        <source>a new session clears the log</source>
        <translation>une nouvelle session vide le journal</translation>
    </message>
    <message>
        <source>the view follows the rolls</source>
        <translation>la vue suit les lancers</translation>
    </message>
    <message>
        <source>what becomes of a winner, 0 manual</source>
        <translation>ce que devient un gagnant, 0 manuel</translation>
    </message>
    <message>
        <source>what becomes of a loser, 0 manual</source>
        <translation>ce que devient un perdant, 0 manuel</translation>
    </message>
    <message>
        <source>amounts that pay whole</source>
        <translation>montants qui paient juste</translation>
    </message>
    <message>
        <source>full odds on Pass Line and Come</source>
        <translation>toutes les Odds sur Pass Line et Come</translation>
    </message>
    <message>
        <source>full odds on Don&apos;t Pass and Don&apos;t Come</source>
        <translation>toutes les Odds sur Don&apos;t Pass et Don&apos;t Come</translation>
    </message>
    <message>
        <source>Place and Buy on a covered number come down</source>
        <translation>Place et Buy sur un numéro couvert sont retirées</translation>
    </message>
    <message>
        <source>the seat won&apos;t shoot</source>
        <translation>la place ne lancera pas</translation>
    </message>
    <message>
        <source>bets without money</source>
        <translation>mises sans argent</translation>
    </message>
    <message>
        <source>new session: 0 carry, 1 amount, 2 ask</source>
        <translation>nouvelle session : 0 reporter, 1 montant, 2 demander</translation>
    </message>
    <message>
        <source>new session&apos;s bankroll</source>
        <translation>bankroll de la nouvelle session</translation>
    </message>
    <message>
        <source>check denominations, ascending</source>
        <translation>valeurs des jetons, croissantes</translation>
    </message>
    <message>
        <source>what a bet pays, as in 7 to 5</source>
        <translation>ce que paie une mise, comme 7 to 5</translation>
    </message>
    <message>
        <source>Field by dice</source>
        <translation>Field par dés</translation>
    </message>
    <message>
        <source>7 Point 7</source>
        <translation>7 Point 7</translation>
    </message>
    <message>
        <source>Midway by dice</source>
        <translation>Midway par dés</translation>
    </message>
    <message>
        <source>by points made + 1</source>
        <translation>par points réalisés + 1</translation>
    </message>
    <message>
        <source>by line wins + 1</source>
        <translation>par gains de ligne + 1</translation>
    </message>
    <message>
        <source>by different points made</source>
        <translation>par points différents réalisés</translation>
    </message>
    <message>
        <source>works on the come-out; seat 0 the house</source>
        <translation>travaille au come-out ; place 0 la maison</translation>
    </message>
    <message>
        <source>counts towards comps</source>
        <translation>compte pour les comps</translation>
    </message>
    <message>
        <source>0 plus, 1 minus, 2 times, 3 divided by</source>
        <translation>0 plus, 1 moins, 2 fois, 3 divisé par</translation>
    </message>
    <message>
        <source>the value of the slot</source>
        <translation>la valeur de la case</translation>
    </message>
    <message>
        <source>0 dollars, 1 percent, 2 to 6 units of a check</source>
        <translation>0 dollars, 1 pour cent, 2 à 6 unités d&apos;un jeton</translation>
    </message>
    <message>
        <source> Take Bet and Winnings</source>
        <translation> Prendre mise et gains</translation>
    </message>
    <message>
        <source> Same Bet/Take Winnings</source>
        <translation> Même mise/prendre les gains</translation>
    </message>
    <message>
        <source> Press 1 Unit</source>
        <translation> Augmenter d&apos;une unité</translation>
    </message>
    <message>
        <source> Press Double</source>
        <translation> Doubler</translation>
    </message>
    <message>
        <source> Parlay</source>
        <translation> Parlay</translation>
    </message>
    <message>
        <source> Same Bet</source>
        <translation> Même mise</translation>
    </message>
    <message>
        <source> Bet</source>
        <translation> Mise</translation>
    </message>
    <message>
        <source> No Bet/Take Remainder (if any)</source>
        <translation> Pas de mise/prendre le reste (s&apos;il y en a)</translation>
    </message>
    <message>
        <source> Bet Remainder (if any)</source>
        <translation> Miser le reste (s&apos;il y en a)</translation>
    </message>
    <message>
        <source> Same Bet Plus 1 Unit</source>
        <translation> Même mise plus 1 unité</translation>
    </message>
    <message>
        <source> Double Bet</source>
        <translation> Doubler la mise</translation>
    </message>
    <message>
        <source> Show as percentage</source>
        <translation> Montrer en pourcentage</translation>
    </message>
    <message>
        <source> Show as +/- from true %</source>
        <translation> Montrer en +/- du vrai %</translation>
    </message>
    <message>
        <source> Show as # rolls out of:</source>
        <translation> Montrer en nombre de lancers sur :</translation>
    </message>
    <message>
        <source> Show as +/- from true rolls out of:</source>
        <translation> Montrer en +/- des vrais lancers sur :</translation>
    </message>
    <message>
        <source> About the 1-6 axis</source>
        <translation> Autour de l&apos;axe 1-6</translation>
    </message>
    <message>
        <source> About the 2-5 axis</source>
        <translation> Autour de l&apos;axe 2-5</translation>
    </message>
    <message>
        <source> About the 3-4 axis</source>
        <translation> Autour de l&apos;axe 3-4</translation>
    </message>
    <message>
        <source>Fair dice</source>
        <translation>Dés justes</translation>
    </message>
    <message>
        <source>Shooter on the 1-6 axis, 10%</source>
        <translation>Lanceur sur l&apos;axe 1-6, 10 %</translation>
    </message>
    <message>
        <source>Loaded dice, 20% sixes</source>
        <translation>Dés pipés, 20 % de six</translation>
    </message>
    <message>
        <source>18% sevens</source>
        <translation>18 % de sept</translation>
    </message>
    <message>
        <source>15% sevens</source>
        <translation>15 % de sept</translation>
    </message>
    <message>
        <source>Free Form Dice</source>
        <translation>Dés libres</translation>
    </message>
    <message>
        <source>Percentage Dice</source>
        <translation>Dés à pourcentages</translation>
    </message>
    <message>
        <source>&amp;11 basic numbers</source>
        <translation>&amp;11 nombres de base</translation>
    </message>
    <message>
        <source>&amp;36 combos (triangle)</source>
        <translation>&amp;36 combinaisons (triangle)</translation>
    </message>
    <message>
        <source>3&amp;6 combos (box)</source>
        <translation>3&amp;6 combinaisons (carré)</translation>
    </message>
    <message>
        <source>&amp;Individual dice faces</source>
        <translation>&amp;Faces une à une</translation>
    </message>
    <message>
        <source>Set 1st checkstack to #</source>
        <translation>Mettre le 1er CheckStack au n°</translation>
    </message>
    <message>
        <source>Set 2nd checkstack to #</source>
        <translation>Mettre le 2e CheckStack au n°</translation>
    </message>
    <message>
        <source>Set 3rd checkstack to #</source>
        <translation>Mettre le 3e CheckStack au n°</translation>
    </message>
    <message>
        <source>Set 4th checkstack to #</source>
        <translation>Mettre le 4e CheckStack au n°</translation>
    </message>
    <message>
        <source># Rolls</source>
        <translation>Nb de lancers</translation>
    </message>
    <message>
        <source># Bets Decided</source>
        <translation>Nb de mises décidées</translation>
    </message>
    <message>
        <source># Bets Won</source>
        <translation>Nb de mises gagnées</translation>
    </message>
    <message>
        <source># Bets Lost</source>
        <translation>Nb de mises perdues</translation>
    </message>
    <message>
        <source># Bets Won/Lost (Net)</source>
        <translation>Nb gagné/perdu (net)</translation>
    </message>
    <message>
        <source>$ Bets Decided (Handle)</source>
        <translation>$ mises décidées (volume)</translation>
    </message>
    <message>
        <source>$ Bets Won</source>
        <translation>$ mises gagnées</translation>
    </message>
    <message>
        <source>$ Bets Lost</source>
        <translation>$ mises perdues</translation>
    </message>
    <message>
        <source>$ Bets Won/Lost (Net)</source>
        <translation>$ gagné/perdu (net)</translation>
    </message>
    <message>
        <source>% Won or Lost (HA)</source>
        <translation>% gagné ou perdu (HA)</translation>
    </message>
    <message>
        <source>Invested bankroll</source>
        <translation>Bankroll investie</translation>
    </message>
    <message>
        <source>Ending bankroll</source>
        <translation>Bankroll finale</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Somme</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Médiane</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Mid</source>
        <translation>Milieu</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Étendue</translation>
    </message>
    <message>
        <source>Variance</source>
        <translation>Variance</translation>
    </message>
    <message>
        <source>Std Dev</source>
        <translation>Écart-type</translation>
    </message>
    <message>
        <source>Skew</source>
        <translation>Asymétrie</translation>
    </message>
    <message>
        <source>Kurtosis</source>
        <translation>Kurtosis</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Hands</source>
        <translation>Mains</translation>
    </message>
    <message>
        <source>Bet Results</source>
        <translation>Résultats des mises</translation>
    </message>
    <message>
        <source>Bet Trends</source>
        <translation>Tendances des mises</translation>
    </message>
    <message>
        <source>Roll Totals</source>
        <translation>Totaux des lancers</translation>
    </message>
    <message>
        <source>Roll Frequencies</source>
        <translation>Fréquences des lancers</translation>
    </message>
    <message>
        <source>Current hand</source>
        <translation>Main en cours</translation>
    </message>
    <message>
        <source>Last hand</source>
        <translation>Dernière main</translation>
    </message>
    <message>
        <source>Current session</source>
        <translation>Session en cours</translation>
    </message>
    <message>
        <source>Last session</source>
        <translation>Dernière session</translation>
    </message>
    <message>
        <source>All sessions</source>
        <translation>Toutes les sessions</translation>
    </message>
    <message>
        <source>No bets selected</source>
        <translation>Aucune mise choisie</translation>
    </message>
    <message>
        <source>Resolved</source>
        <translation>Décidées</translation>
    </message>
    <message>
        <source>Tendered</source>
        <translation>Misées</translation>
    </message>
    <message>
        <source>Average $</source>
        <translation>$ moyen</translation>
    </message>
    <message>
        <source>Avg # / hour</source>
        <translation>Nb moyen / heure</translation>
    </message>
    <message>
        <source>Avg $ / hour</source>
        <translation>$ moyen / heure</translation>
    </message>
    <message>
        <source>Total #</source>
        <translation>Nb total</translation>
    </message>
    <message>
        <source>Total $</source>
        <translation>$ total</translation>
    </message>
    <message>
        <source>High $</source>
        <translation>$ le plus haut</translation>
    </message>
    <message>
        <source>Low $</source>
        <translation>$ le plus bas</translation>
    </message>
    <message>
        <source>Last $</source>
        <translation>Dernier $</translation>
    </message>
    <message>
        <source># rolls since last</source>
        <translation>Lancers depuis</translation>
    </message>
    <message>
        <source>Last roll #</source>
        <translation>Dernier lancer n°</translation>
    </message>
    <message>
        <source>Last roll $</source>
        <translation>Dernier lancer $</translation>
    </message>
    <message>
        <source>Current #</source>
        <translation>Nb actuel</translation>
    </message>
    <message>
        <source>Current $</source>
        <translation>$ actuel</translation>
    </message>
    <message>
        <source>Prior roll #</source>
        <translation>Lancer précédent n°</translation>
    </message>
    <message>
        <source>Prior roll $</source>
        <translation>Lancer précédent $</translation>
    </message>
    <message>
        <source>Wagers #</source>
        <translation>Mises nb</translation>
    </message>
    <message>
        <source>Wagers $</source>
        <translation>Mises $</translation>
    </message>
    <message>
        <source>Wins #</source>
        <translation>Gains nb</translation>
    </message>
    <message>
        <source>Losses #</source>
        <translation>Pertes nb</translation>
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
        <translation>Mises</translation>
    </message>
    <message>
        <source>Wins</source>
        <translation>Gains</translation>
    </message>
    <message>
        <source>Losses</source>
        <translation>Pertes</translation>
    </message>
    <message>
        <source>Net</source>
        <translation>Net</translation>
    </message>
    <message>
        <source>Expected value $</source>
        <translation>Espérance $</translation>
    </message>
    <message>
        <source>in a row</source>
        <translation>de suite</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Naturals</source>
        <translation>Naturals</translation>
    </message>
    <message>
        <source>c/o rolls</source>
        <translation>lancers c/o</translation>
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
        <translation>Total des lancers</translation>
    </message>
    <message>
        <source>Total hands</source>
        <translation>Total des mains</translation>
    </message>
    <message>
        <source>Most rolls in a hand</source>
        <translation>Plus de lancers dans une main</translation>
    </message>
    <message>
        <source>Most c/o rolls in a hand</source>
        <translation>Plus de lancers c/o dans une main</translation>
    </message>
    <message>
        <source>Most passes in a hand</source>
        <translation>Plus de passes dans une main</translation>
    </message>
    <message>
        <source>Most misses in a hand</source>
        <translation>Plus de misses dans une main</translation>
    </message>
    <message>
        <source>Avg rolls per hand</source>
        <translation>Moy. lancers par main</translation>
    </message>
    <message>
        <source>Avg c/o rolls per hand</source>
        <translation>Moy. lancers c/o par main</translation>
    </message>
    <message>
        <source>Avg passes per hand</source>
        <translation>Moy. passes par main</translation>
    </message>
    <message>
        <source>Avg misses per hand</source>
        <translation>Moy. misses par main</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valeur</translation>
    </message>
    <message>
        <source>Total session rolls:</source>
        <translation>Total des lancers de la session :</translation>
    </message>
    <message>
        <source>Total rolls this selection:</source>
        <translation>Total des lancers de ce choix :</translation>
    </message>
    <message>
        <source># rolls since last rolled:</source>
        <translation>Lancers depuis la dernière fois :</translation>
    </message>
    <message>
        <source>Actual % rolled:</source>
        <translation>% réellement sorti :</translation>
    </message>
    <message>
        <source>Skewed probable %:</source>
        <translation>% probable faussé :</translation>
    </message>
    <message>
        <source>True probable %:</source>
        <translation>% probable vrai :</translation>
    </message>
    <message>
        <source>Average # of rolls to achieve:</source>
        <translation>Lancers en moyenne pour l&apos;obtenir :</translation>
    </message>
    <message>
        <source>Rolls to come again, and how often</source>
        <translation>Lancers avant le retour, et combien de fois</translation>
    </message>
    <message>
        <source>Number %1</source>
        <translation>Nombre %1</translation>
    </message>
    <message>
        <source>Numbers %1</source>
        <translation>Nombres %1</translation>
    </message>
    <message>
        <source>Any %1</source>
        <translation>Tout %1</translation>
    </message>
    <message>
        <source>Hard %1</source>
        <translation>Hard %1</translation>
    </message>
    <message>
        <source>Die %1, face %2</source>
        <translation>Dé %1, face %2</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>language of the window</source>
        <translation>langue de la fenêtre</translation>
    </message>
    <message>
        <source>As at first</source>
        <translation>Comme à l&apos;origine</translation>
    </message>
    <message>
        <source>The table as it is when the program is started for the first time.</source>
        <translation>La table telle qu&apos;elle est au premier démarrage du programme.</translation>
    </message>
    <message>
        <source>3-4-5x odds, $10 table</source>
        <translation>Odds 3-4-5x, table à 10 $</translation>
    </message>
    <message>
        <source>The usual table of a large house: three times odds on 4 and 10, four on 5 and 9, five on 6 and 8.</source>
        <translation>La table habituelle d&apos;une grande maison : Odds triples sur 4 et 10, quadruples sur 5 et 9, quintuples sur 6 et 8.</translation>
    </message>
    <message>
        <source>3-4-5x odds, $25 table</source>
        <translation>Odds 3-4-5x, table à 25 $</translation>
    </message>
    <message>
        <source>The same in the evening: a higher minimum, propositions from $5.</source>
        <translation>La même le soir : un minimum plus haut, propositions dès 5 $.</translation>
    </message>
    <message>
        <source>Double odds, $5 table</source>
        <translation>Odds doubles, table à 5 $</translation>
    </message>
    <message>
        <source>A small house with double odds and every side bet.</source>
        <translation>Une petite maison avec Odds doubles et toutes les mises annexes.</translation>
    </message>
    <message>
        <source>Single odds, bar 2, $5 table</source>
        <translation>Odds simples, barre 2, table à 5 $</translation>
    </message>
    <message>
        <source>An old house: single odds, two aces barred, no Put bets.</source>
        <translation>Une vieille maison : Odds simples, deux as barrés, pas de mises Put.</translation>
    </message>
    <message>
        <source>10x odds, $10 table</source>
        <translation>Odds 10x, table à 10 $</translation>
    </message>
    <message>
        <source>Ten times odds on every point, vig only when Buy and Lay bets win.</source>
        <translation>Odds dix fois sur chaque point, vig seulement quand Buy et Lay gagnent.</translation>
    </message>
    <message>
        <source>20x odds, $5 table</source>
        <translation>Odds 20x, table à 5 $</translation>
    </message>
    <message>
        <source>Twenty times odds on every point, a low minimum.</source>
        <translation>Odds vingt fois sur chaque point, un minimum bas.</translation>
    </message>
    <message>
        <source>100x odds, $5 table</source>
        <translation>Odds 100x, table à 5 $</translation>
    </message>
    <message>
        <source>A hundred times odds on every point: what the house keeps is least here.</source>
        <translation>Odds cent fois sur chaque point : la maison garde ici le moins.</translation>
    </message>
    <message>
        <source>At home, from a quarter</source>
        <translation>À la maison, dès 25 cents</translation>
    </message>
    <message>
        <source>Checks of 25 cents to $25, bets from a quarter to $50.</source>
        <translation>Jetons de 25 cents à 25 $, mises de 25 cents à 50 $.</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>sans titre</translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;All files (*)</source>
        <translation>Valeurs séparées par des virgules (*.csv);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation>Exporter l&apos;image</translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;All files (*)</source>
        <translation>Images PNG (*.png);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>SVG drawings (*.svg);;All files (*)</source>
        <translation>Dessins SVG (*.svg);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>PDF files (*.pdf);;All files (*)</source>
        <translation>Fichiers PDF (*.pdf);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Open Events Log</source>
        <translation>Ouvrir un journal des événements</translation>
    </message>
    <message>
        <source>Events log file (*.txt);;All files (*)</source>
        <translation>Journal des événements (*.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save Events Log As</source>
        <translation>Enregistrer le journal des événements sous</translation>
    </message>
    <message>
        <source>Open Session File</source>
        <translation>Ouvrir un fichier de session</translation>
    </message>
    <message>
        <source>Session files (*.crp);;All files (*)</source>
        <translation>Fichiers de session (*.crp);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save Session File As</source>
        <translation>Enregistrer le fichier de session sous</translation>
    </message>
    <message>
        <source>Open Auto-Bet File</source>
        <translation>Ouvrir un fichier Auto-Bet</translation>
    </message>
    <message>
        <source>Auto-bet files (*.bet);;All files (*)</source>
        <translation>Fichiers Auto-Bet (*.bet);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save Auto-Bet File As</source>
        <translation>Enregistrer le fichier Auto-Bet sous</translation>
    </message>
    <message>
        <source>Select Auto-Bet File for Hot-Key</source>
        <translation>Choisir le fichier Auto-Bet de la touche</translation>
    </message>
    <message>
        <source>Open Probability File</source>
        <translation>Ouvrir un fichier de probabilités</translation>
    </message>
    <message>
        <source>Probability file (*.prb);;All files (*)</source>
        <translation>Fichier de probabilités (*.prb);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save Probability File As</source>
        <translation>Enregistrer le fichier de probabilités sous</translation>
    </message>
    <message>
        <source>Open Dice Roll File  or  Enter Name For A New File</source>
        <translation>Ouvrir un fichier de lancers  ou  donner le nom d&apos;un nouveau</translation>
    </message>
    <message>
        <source>Dice roll file (*.rol);;All files (*)</source>
        <translation>Fichier de lancers (*.rol);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Copy To Dice Roll File</source>
        <translation>Copier vers un fichier de lancers</translation>
    </message>
    <message>
        <source>Copy To Roll File</source>
        <translation>Copier vers un fichier de lancers</translation>
    </message>
    <message>
        <source>Copy Dice Rolls To Text File</source>
        <translation>Copier les lancers vers un fichier texte</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation>Fichiers texte (*.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Copy To Text File</source>
        <translation>Copier vers un fichier texte</translation>
    </message>
    <message>
        <source>Paste From Dice Roll File</source>
        <translation>Coller depuis un fichier de lancers</translation>
    </message>
    <message>
        <source>Paste From Ascii/Text File</source>
        <translation>Coller depuis un fichier ASCII/texte</translation>
    </message>
    <message>
        <source>RNG Seed</source>
        <translation>Germe du générateur</translation>
    </message>
    <message>
        <source>Auto-bet files (*.bet);;Auto-bet &amp; text files (*.bet *.txt);;Text files (*.txt);;All files (*.*)</source>
        <translation>Fichiers Auto-Bet (*.bet);;Fichiers Auto-Bet et texte (*.bet *.txt);;Fichiers texte (*.txt);;Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>Open House Rules</source>
        <translation>Ouvrir des règles de maison</translation>
    </message>
    <message>
        <source>House rules (*.txt);;All files (*)</source>
        <translation>Règles de maison (*.txt);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save House Rules As</source>
        <translation>Enregistrer les règles de maison sous</translation>
    </message>
    <message>
        <source>Save Laboratory Report As</source>
        <translation>Enregistrer le rapport du laboratoire sous</translation>
    </message>
    <message>
        <source>Web pages (*.html);;All files (*)</source>
        <translation>Pages web (*.html);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Dice Roll File</source>
        <translation>Fichier de lancers</translation>
    </message>
    <message>
        <source>Record Dice Rolls During Game Play</source>
        <translation>Enregistrer les lancers pendant la partie</translation>
    </message>
    <message>
        <source>Playback Dice Rolls During Game Play</source>
        <translation>Rejouer les lancers pendant la partie</translation>
    </message>
    <message>
        <source>Record Dice Rolls</source>
        <translation>Enregistrer les lancers</translation>
    </message>
    <message>
        <source>Print Dice Roll File</source>
        <translation>Imprimer le fichier de lancers</translation>
    </message>
    <message>
        <source>Print Dice Rolls</source>
        <translation>Imprimer les lancers</translation>
    </message>
    <message>
        <source>Open Sessions Log</source>
        <translation>Ouvrir un journal des sessions</translation>
    </message>
    <message>
        <source>Sessions logs (*.slg);;All files (*)</source>
        <translation>Journaux des sessions (*.slg);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save Sessions Log As</source>
        <translation>Enregistrer le journal des sessions sous</translation>
    </message>
    <message>
        <source>Open Laboratory Experiment</source>
        <translation>Ouvrir une expérience de laboratoire</translation>
    </message>
    <message>
        <source>Laboratory experiments (*.lab);;All files (*)</source>
        <translation>Expériences de laboratoire (*.lab);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save Laboratory Experiment As</source>
        <translation>Enregistrer l&apos;expérience sous</translation>
    </message>
    <message>
        <source>Save Sessions As</source>
        <translation>Enregistrer les sessions sous</translation>
    </message>
    <message>
        <source>Sessions Logs (*.slg);;All files (*)</source>
        <translation>Journaux des sessions (*.slg);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save Results As</source>
        <translation>Enregistrer les résultats sous</translation>
    </message>
    <message>
        <source>JSON (*.json);;All files (*)</source>
        <translation>JSON (*.json);;Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>Guide</name>
    <message>
        <source>Click a + to join</source>
        <translation>Cliquez sur un + pour entrer</translation>
    </message>
    <message>
        <source>Choose a check, click PASS LINE</source>
        <translation>Prenez un jeton, cliquez PASS LINE</translation>
    </message>
    <message>
        <source>Roll</source>
        <translation>Lancez</translation>
    </message>
</context>
<context>
    <name>HelpFigures</name>
    <message>
        <source>as odds on the point</source>
        <translation>comme les Odds sur le point</translation>
    </message>
    <message>
        <source>%1, less %2% vig</source>
        <translation>%1, moins %2 % de vig</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Mise</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Paie</translation>
    </message>
    <message>
        <source>House edge</source>
        <translation>Avantage</translation>
    </message>
    <message>
        <source>Edge a roll</source>
        <translation>Avantage par lancer</translation>
    </message>
    <message>
        <source>Rolls to a decision</source>
        <translation>Lancers avant décision</translation>
    </message>
    <message>
        <source>What comes</source>
        <translation>Ce qui sort</translation>
    </message>
    <message>
        <source>nothing, and stays</source>
        <translation>rien, et reste</translation>
    </message>
    <message>
        <source>loses</source>
        <translation>perd</translation>
    </message>
    <message>
        <source>loses in part</source>
        <translation>perd en partie</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Règle</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Actuel</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Maison</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Règles</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Ligne de commande</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
</context>
<context>
    <name>Laboratory</name>
    <message>
        <source>Laboratory</source>
        <translation>Laboratoire</translation>
    </message>
    <message numerus="yes">
        <source>At the table: session %1 of %2, %3 rolls to %4</source>
        <translation>
            <numerusform>À la table : session %1 de %2, %3 lancer jusqu&apos;à %4</numerusform>
            <numerusform>À la table : session %1 de %2, %3 lancers jusqu&apos;à %4</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: no session rolled the dice: %2</source>
        <translation>%1 : aucune session n&apos;a lancé les dés : %2</translation>
    </message>
    <message>
        <source>%1: its script has errors: %2</source>
        <translation>%1 : son script a des erreurs : %2</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>%1 ends a session at %2 on average: between %3 and %4, 95% sure.</source>
        <translation>%1 finit une session à %2 en moyenne : entre %3 et %4, sûr à 95 %.</translation>
    </message>
    <message>
        <source>%1 ends a session %2 better than %3 on the same dice: between %4 and %5, 95% sure.</source>
        <translation>%1 finit une session %2 mieux que %3 avec les mêmes dés : entre %4 et %5, sûr à 95 %.</translation>
    </message>
    <message>
        <source>Neither is sure to be better: %1 less %2 is %3 a session, between %4 and %5.</source>
        <translation>Aucun n&apos;est sûrement meilleur : %1 moins %2 fait %3 par session, entre %4 et %5.</translation>
    </message>
    <message>
        <source>start %1</source>
        <translation>départ %1</translation>
    </message>
    <message>
        <source>goal +%1</source>
        <translation>but +%1</translation>
    </message>
    <message>
        <source>loss limit -%1</source>
        <translation>limite de perte -%1</translation>
    </message>
    <message numerus="yes">
        <source>at most %1 rolls</source>
        <translation>
            <numerusform>au plus %1 lancer</numerusform>
            <numerusform>au plus %1 lancers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>at most %1 hands</source>
        <translation>
            <numerusform>au plus %1 main</numerusform>
            <numerusform>au plus %1 mains</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions each, %2.</source>
        <translation>
            <numerusform>%1 session chacun, %2.</numerusform>
            <numerusform>%1 sessions chacun, %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 would give ±%2.</source>
        <translation>%1 donneraient ±%2.</translation>
    </message>
    <message>
        <source>Goal reached</source>
        <translation>But atteint</translation>
    </message>
    <message>
        <source>Loss limit met</source>
        <translation>Limite de perte atteinte</translation>
    </message>
    <message>
        <source>Ruined</source>
        <translation>Ruiné</translation>
    </message>
    <message>
        <source>Stopped by itself</source>
        <translation>Arrêté de lui-même</translation>
    </message>
    <message>
        <source>Ended ahead</source>
        <translation>Fini en gain</translation>
    </message>
    <message>
        <source>Ended even</source>
        <translation>Fini à zéro</translation>
    </message>
    <message>
        <source>Ended behind</source>
        <translation>Fini en perte</translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation>Sessions</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Mean without luck</source>
        <translation>Moyenne sans la chance</translation>
    </message>
    <message>
        <source>Std Dev</source>
        <translation>Écart-type</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Médiane</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>5% quantile</source>
        <translation>Quantile 5 %</translation>
    </message>
    <message>
        <source>95% quantile</source>
        <translation>Quantile 95 %</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Mean drawdown</source>
        <translation>Recul moyen</translation>
    </message>
    <message>
        <source>Ahead</source>
        <translation>En gain</translation>
    </message>
    <message>
        <source>Goal</source>
        <translation>But</translation>
    </message>
    <message>
        <source>Mean rolls</source>
        <translation>Lancers en moyenne</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>loss limit %1</source>
        <translation>limite de perte %1</translation>
    </message>
    <message>
        <source>goal %1</source>
        <translation>but %1</translation>
    </message>
    <message>
        <source># sessions</source>
        <translation>Nb de sessions</translation>
    </message>
    <message>
        <source>Line: 1% to 99%.  Thick: 5% to 95%.  Box: the middle half, bar at the median.  Diamond: mean.</source>
        <translation>Trait : 1 % à 99 %.  Épais : 5 % à 95 %.  Boîte : la moitié centrale, barre à la médiane.  Losange : moyenne.</translation>
    </message>
    <message>
        <source>Only sessions with a most number of rolls are looked at on the way.</source>
        <translation>Seules les sessions à nombre de lancers borné sont regardées en route.</translation>
    </message>
    <message>
        <source>Won or lost, $</source>
        <translation>Gagné ou perdu, $</translation>
    </message>
    <message>
        <source>Rolls.  Line: median.  Inner band: the middle half.  Outer band: 5% to 95%.</source>
        <translation>Lancers.  Trait : médiane.  Bande intérieure : la moitié centrale.  Bande extérieure : 5 % à 95 %.</translation>
    </message>
    <message>
        <source>Result of a session, $</source>
        <translation>Résultat d&apos;une session, $</translation>
    </message>
    <message>
        <source>Bankrolls on the way</source>
        <translation>Bankrolls en route</translation>
    </message>
    <message>
        <source>How sessions end, with 95% bounds</source>
        <translation>Comment finissent les sessions, bornes à 95 %</translation>
    </message>
    <message>
        <source>Nothing has been played yet.</source>
        <translation>Rien n&apos;a encore été joué.</translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions (%2)</source>
        <translation>
            <numerusform>%1 session (%2)</numerusform>
            <numerusform>%1 sessions (%2)</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: A %3</source>
        <translation>%1 à %2 : A %3</translation>
    </message>
    <message>
        <source>, B %1</source>
        <translation>, B %1</translation>
    </message>
    <message>
        <source>at most %1 hours</source>
        <translation>au plus %1 h</translation>
    </message>
    <message>
        <source>Price of the bets</source>
        <translation>Coût des mises</translation>
    </message>
    <message>
        <source>less system</source>
        <translation>moins système</translation>
    </message>
    <message>
        <source>Mean difference</source>
        <translation>Différence moyenne</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
    <message>
        <source>Better, 95% sure</source>
        <translation>Meilleur, sûr à 95 %</translation>
    </message>
    <message>
        <source>the first</source>
        <translation>le premier</translation>
    </message>
    <message>
        <source>the second</source>
        <translation>le second</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>non établi</translation>
    </message>
    <message>
        <source>Least bankroll</source>
        <translation>Bankroll minimale</translation>
    </message>
    <message>
        <source>Largest start of CheckStack %1</source>
        <translation>Plus haut départ du CheckStack %1</translation>
    </message>
    <message>
        <source>95% bounds</source>
        <translation>Bornes à 95 %</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>%1: nothing keeps the ruined within %2.</source>
        <translation>%1 : rien ne limite les ruines à %2.</translation>
    </message>
    <message>
        <source>%1 needs a bankroll of %2, so that at most %3 are ruined: between %4 and %5, 95% sure.</source>
        <translation>%1 : pour au plus %3 de ruines, il faut une bankroll de %2, entre %4 et %5, sûr à 95 %.</translation>
    </message>
    <message>
        <source>%1: any start of the CheckStack keeps the ruined within %2.</source>
        <translation>%1 : tout départ du CheckStack limite les ruines à %2.</translation>
    </message>
    <message>
        <source>%1: CheckStack %2 may start at %3, so that at most %4 are ruined: between %5 and %6, 95% sure.</source>
        <translation>%1 : pour au plus %4 de ruines, le CheckStack %2 peut partir de %3, entre %5 et %6, sûr à 95 %.</translation>
    </message>
    <message>
        <source>No session was ruined.</source>
        <translation>Aucune session n&apos;a fini en ruine.</translation>
    </message>
    <message>
        <source>Ruined by then, share of sessions</source>
        <translation>Ruinées jusque-là, part des sessions</translation>
    </message>
    <message>
        <source>Rolls.  Line: A.  Dashed: B.</source>
        <translation>Lancers.  Trait : A.  Tirets : B.</translation>
    </message>
    <message>
        <source>Rolls.</source>
        <translation>Lancers.</translation>
    </message>
    <message>
        <source>Ruin over time</source>
        <translation>Ruine au fil du temps</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Balayage</translation>
    </message>
    <message>
        <source>Framed: the best.  Dotted: not sure to be worse than that.</source>
        <translation>Encadré : le meilleur.  Pointillé : pas sûrement moins bon.</translation>
    </message>
    <message>
        <source>Framed: the best.</source>
        <translation>Encadré : le meilleur.</translation>
    </message>
    <message>
        <source>%1, with 95% bounds</source>
        <translation>%1, bornes à 95 %</translation>
    </message>
    <message>
        <source>Nothing was varied. Let a CheckStack start at several values, or vary a setting, and what comes of each stands here.</source>
        <translation>Rien n&apos;a été varié. Faites partir un CheckStack de plusieurs valeurs, ou variez un réglage, et ce que donne chaque valeur s&apos;affiche ici.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1: mean %2 ± %3, median %4, ruined %5</source>
        <translation>%1 : moyenne %2 ± %3, médiane %4, ruine %5</translation>
    </message>
</context>
<context>
    <name>LaboratorySetup</name>
    <message>
        <source>%1 %2: %3</source>
        <translation>%1 %2 : %3</translation>
    </message>
</context>
<context>
    <name>PickList</name>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout choisir</translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation>&amp;Ne rien choisir</translation>
    </message>
</context>
<context>
    <name>Plates</name>
    <message numerus="yes">
        <source>%1 Bets:</source>
        <translation>
            <numerusform>%1 mise :</numerusform>
            <numerusform>%1 mises :</numerusform>
        </translation>
    </message>
    <message>
        <source>Won:</source>
        <translation>Gagné :</translation>
    </message>
    <message>
        <source>Lost:</source>
        <translation>Perdu :</translation>
    </message>
    <message>
        <source>Even:</source>
        <translation>Égal :</translation>
    </message>
    <message>
        <source>Rail:</source>
        <translation>Rail :</translation>
    </message>
    <message>
        <source>Bankroll:</source>
        <translation>Bankroll :</translation>
    </message>
    <message>
        <source>Bank:</source>
        <translation>Solde :</translation>
    </message>
</context>
<context>
    <name>PrintHeading</name>
    <message>
        <source>Game file:  %1</source>
        <translation>Fichier de partie :  %1</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>sans titre</translation>
    </message>
    <message>
        <source>Player:  %1</source>
        <translation>Joueur :  %1</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>The pages are being made.</source>
        <translation>Préparation des pages.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>The rows are being written.</source>
        <translation>Écriture des lignes.</translation>
    </message>
    <message>
        <source>The rows are being copied.</source>
        <translation>Copie des lignes.</translation>
    </message>
</context>
<context>
    <name>ProbabilityPicture</name>
    <message>
        <source>Die 1 down, die 2 across: % points from fair</source>
        <translation>Dé 1 vers le bas, dé 2 en travers : écart en %</translation>
    </message>
    <message>
        <source>Totals: filled as set, hatched fair</source>
        <translation>Totaux : plein comme réglé, hachuré juste</translation>
    </message>
    <message>
        <source>How the dice differ from fair ones</source>
        <translation>En quoi les dés diffèrent de dés justes</translation>
    </message>
</context>
<context>
    <name>ProbabilityTable</name>
    <message>
        <source>Probability</source>
        <translation>Probabilité</translation>
    </message>
    <message>
        <source>Die 1</source>
        <translation>Dé 1</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totaux</translation>
    </message>
    <message>
        <source>Die 2</source>
        <translation>Dé 2</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Total %1</translation>
    </message>
    <message>
        <source>Die 1 shows %1</source>
        <translation>Le dé 1 montre %1</translation>
    </message>
    <message>
        <source>Die 2 shows %1</source>
        <translation>Le dé 2 montre %1</translation>
    </message>
    <message>
        <source>Die 1 shows %1 and die 2 shows %2</source>
        <translation>Le dé 1 montre %1 et le dé 2 montre %2</translation>
    </message>
    <message>
        <source>%1: %2, locked</source>
        <translation>%1 : %2, verrouillé</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>%1 (not saved)</source>
        <translation>%1 (non enregistré)</translation>
    </message>
    <message>
        <source>Die %1</source>
        <translation>Dé %1</translation>
    </message>
    <message>
        <source>Effectiveness %:</source>
        <translation>Efficacité % :</translation>
    </message>
    <message>
        <source>Die %1, shooter&apos;s effectiveness in percent</source>
        <translation>Dé %1, efficacité du lanceur en pour cent</translation>
    </message>
    <message>
        <source>Shooter&apos;s Effectiveness</source>
        <translation>Efficacité du lanceur</translation>
    </message>
    <message>
        <source>In so many percent of the rolls a die turns about its axis, so that the two faces at the axis&apos; ends never show. All cells are unlocked first.</source>
        <translation>Dans autant de pour cent des lancers, un dé tourne autour de son axe, si bien que les deux faces aux bouts de l&apos;axe ne sortent jamais. Toutes les cases sont d&apos;abord déverrouillées.</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Accepter</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>* beyond 2 standard errors</source>
        <translation>* au-delà de 2 erreurs types</translation>
    </message>
    <message>
        <source>PERCENT</source>
        <translation>POUR CENT</translation>
    </message>
    <message>
        <source>Actual</source>
        <translation>Réel</translation>
    </message>
    <message>
        <source>Probable (skewed)</source>
        <translation>Probable (faussé)</translation>
    </message>
    <message>
        <source>Probable</source>
        <translation>Probable</translation>
    </message>
    <message>
        <source>TIMES</source>
        <translation>FOIS</translation>
    </message>
    <message>
        <source>rolls to come again</source>
        <translation>lancers avant le retour</translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation>&amp;Standard</translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translation>&amp;Vert</translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation>&amp;Bleu</translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translation>Ro&amp;uge</translation>
    </message>
    <message>
        <source>G&amp;old</source>
        <translation>&amp;Or</translation>
    </message>
    <message>
        <source>&amp;Purple</source>
        <translation>Viole&amp;t</translation>
    </message>
    <message>
        <source>&amp;Teal</source>
        <translation>B&amp;leu-vert</translation>
    </message>
    <message>
        <source>Or&amp;ange</source>
        <translation>Or&amp;ange</translation>
    </message>
    <message>
        <source>Gr&amp;ey</source>
        <translation>&amp;Gris</translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation>Bla&amp;nc</translation>
    </message>
    <message>
        <source>Blac&amp;k</source>
        <translation>Noi&amp;r</translation>
    </message>
    <message>
        <source>No players present</source>
        <translation>Aucun joueur à la table</translation>
    </message>
    <message>
        <source>No players selected</source>
        <translation>Aucun joueur choisi</translation>
    </message>
    <message>
        <source>All players selected</source>
        <translation>Tous les joueurs choisis</translation>
    </message>
    <message numerus="yes">
        <source>%1 players selected</source>
        <translation>
            <numerusform>%1 joueur choisi</numerusform>
            <numerusform>%1 joueurs choisis</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, more than two standard errors off</source>
        <translation>%1, à plus de deux erreurs types</translation>
    </message>
    <message>
        <source>A click on a heading, or Enter, sorts by the column</source>
        <translation>Un clic sur un titre, ou Entrée, trie par la colonne</translation>
    </message>
    <message>
        <source>Percentages</source>
        <translation>Pourcentages</translation>
    </message>
    <message>
        <source>Skewed</source>
        <translation>Faussé</translation>
    </message>
    <message>
        <source>&amp;11 basic numbers</source>
        <translation>&amp;11 nombres de base</translation>
    </message>
    <message>
        <source>&amp;21 distinguishable combos</source>
        <translation>&amp;21 combinaisons distinctes</translation>
    </message>
    <message>
        <source>&amp;36 unique combos</source>
        <translation>&amp;36 combinaisons uniques</translation>
    </message>
    <message>
        <source>&amp;Dice faces</source>
        <translation>&amp;Faces des dés</translation>
    </message>
    <message>
        <source>Rolls that count</source>
        <translation>Lancers qui comptent</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Joueur</translation>
    </message>
    <message>
        <source>Outcome of a roll</source>
        <translation>Issue d&apos;un lancer</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Joueurs</translation>
    </message>
    <message>
        <source>Players who count</source>
        <translation>Joueurs qui comptent</translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Mises</translation>
    </message>
    <message>
        <source>Bets that count</source>
        <translation>Mises qui comptent</translation>
    </message>
    <message>
        <source>Probabilities of the percentage dice, else of true dice</source>
        <translation>Probabilités des dés à pourcentages, sinon de vrais dés</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>&amp;Each bet in a row</source>
        <translation>&amp;Chaque mise sur une ligne</translation>
    </message>
    <message>
        <source>Use thousands &amp;separator</source>
        <translation>&amp;Séparateur de milliers</translation>
    </message>
    <message>
        <source>Font &amp;bold</source>
        <translation>Police &amp;grasse</translation>
    </message>
    <message>
        <source>Font &amp;italic</source>
        <translation>Police &amp;italique</translation>
    </message>
    <message>
        <source>Display &amp;totals</source>
        <translation>&amp;Afficher les totaux</translation>
    </message>
    <message>
        <source>&amp;Hide probability bars</source>
        <translation>&amp;Cacher les barres de probabilité</translation>
    </message>
    <message>
        <source>Graph &amp;background color ...</source>
        <translation>Couleur de &amp;fond du graphique ...</translation>
    </message>
    <message>
        <source>&amp;Graph bars color ...</source>
        <translation>Couleur des &amp;barres du graphique ...</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>The table below it has its figures</source>
        <translation>Le tableau en dessous a ses chiffres</translation>
    </message>
    <message>
        <source>Selected player</source>
        <translation>Joueur choisi</translation>
    </message>
    <message>
        <source>* more than two standard errors from the probable</source>
        <translation>* à plus de deux erreurs types du probable</translation>
    </message>
</context>
<context>
    <name>RollChart</name>
    <message>
        <source>Distribution of the totals: %1</source>
        <translation>Répartition des totaux : %1</translation>
    </message>
    <message>
        <source>%1: %2 of %3 rolls, %4%, fair dice %5%</source>
        <translation>%1 : %2 de %3 lancers, %4 %, dés justes %5 %</translation>
    </message>
    <message>
        <source>%1, more than two standard errors away</source>
        <translation>%1, à plus de deux erreurs types</translation>
    </message>
    <message numerus="yes">
        <source>%1 values are no rolls</source>
        <translation>
            <numerusform>%1 valeur n&apos;est pas un lancer</numerusform>
            <numerusform>%1 valeurs ne sont pas des lancers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RunControls</name>
    <message>
        <source>Stop &amp;Auto-Roll</source>
        <translation>Arrêter &amp;Auto-Roll</translation>
    </message>
    <message>
        <source>Stop &amp;Turbo-Roll</source>
        <translation>Arrêter &amp;Turbo-Roll</translation>
    </message>
    <message>
        <source>Start &amp;Auto-Roll</source>
        <translation>Démarrer &amp;Auto-Roll</translation>
    </message>
    <message>
        <source>Start &amp;Turbo-Roll</source>
        <translation>Démarrer &amp;Turbo-Roll</translation>
    </message>
    <message>
        <source>Auto-Roll</source>
        <translation>Auto-Roll</translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation>Pleine vitesse</translation>
    </message>
    <message>
        <source>%1 s a roll</source>
        <translation>%1 s/lancer</translation>
    </message>
</context>
<context>
    <name>ScriptLexer</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Logic</source>
        <translation>Logique</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Fonction</translation>
    </message>
    <message>
        <source>Modifier</source>
        <translation>Modificateur</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Sign</source>
        <translation>Signe</translation>
    </message>
    <message>
        <source>Text in quotes</source>
        <translation>Texte entre guillemets</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Joueur</translation>
    </message>
    <message>
        <source>Unknown word</source>
        <translation>Mot inconnu</translation>
    </message>
</context>
<context>
    <name>Sounds</name>
    <message>
        <source>Missing sound files: %1</source>
        <translation>Fichiers de sons manquants : %1</translation>
    </message>
</context>
<context>
    <name>TableAccessible</name>
    <message>
        <source>%1, left end</source>
        <translation>%1, bout gauche</translation>
    </message>
    <message>
        <source>%1, right end</source>
        <translation>%1, bout droit</translation>
    </message>
    <message>
        <source>Seat %1, open</source>
        <translation>Place %1, libre</translation>
    </message>
    <message>
        <source>Seat %1, %2</source>
        <translation>Place %1, %2</translation>
    </message>
    <message>
        <source>Checks of %1 on %2</source>
        <translation>Jetons de %1 sur %2</translation>
    </message>
    <message>
        <source>Last roll</source>
        <translation>Dernier lancer</translation>
    </message>
    <message>
        <source>Take down</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Miser</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Entrer</translation>
    </message>
    <message>
        <source>Roll %1: %2 (%3-%4)</source>
        <translation>Lancer %1 : %2 (%3-%4)</translation>
    </message>
    <message>
        <source>seven-out, the point was %1</source>
        <translation>seven-out, le point était %1</translation>
    </message>
    <message>
        <source>the point %1 is made</source>
        <translation>le point %1 est réalisé</translation>
    </message>
    <message>
        <source>the point is %1</source>
        <translation>le point est %1</translation>
    </message>
    <message>
        <source>the point stays %1</source>
        <translation>le point reste %1</translation>
    </message>
    <message>
        <source>%1 won %2</source>
        <translation>%1 gagne %2</translation>
    </message>
    <message>
        <source>%1 lost %2</source>
        <translation>%1 perd %2</translation>
    </message>
</context>
<context>
    <name>TableCommands</name>
    <message>
        <source>Carrying %1</source>
        <translation>%1 en main</translation>
    </message>
    <message>
        <source>Moving %1</source>
        <translation>Déplacement de %1</translation>
    </message>
    <message>
        <source>Next click: call a bet ON</source>
        <translation>Prochain clic : déclarer une mise ON</translation>
    </message>
    <message>
        <source>Next click: call a bet OFF</source>
        <translation>Prochain clic : déclarer une mise OFF</translation>
    </message>
    <message>
        <source>Next click: buy a Place bet</source>
        <translation>Prochain clic : acheter une mise Place</translation>
    </message>
    <message>
        <source>Next click: remove a bet</source>
        <translation>Prochain clic : retirer une mise</translation>
    </message>
    <message>
        <source>Next click: take a bet to move it</source>
        <translation>Prochain clic : prendre une mise à déplacer</translation>
    </message>
    <message>
        <source>Click: bets %1</source>
        <translation>Clic : mise %1</translation>
    </message>
    <message>
        <source>Drag: moves it, off the felt takes it down; Delete and a click too</source>
        <translation>Glisser : la déplace, hors du tapis la retire ; Suppr puis clic aussi</translation>
    </message>
    <message>
        <source>Right click: rolls</source>
        <translation>Clic droit : lance</translation>
    </message>
    <message>
        <source>No bet has ridden in this session</source>
        <translation>Aucune mise n&apos;a été en jeu dans cette session</translation>
    </message>
    <message>
        <source>Expected of the bets made: %1</source>
        <translation>Attendu des mises faites : %1</translation>
    </message>
    <message>
        <source>Came: %1</source>
        <translation>Venu : %1</translation>
    </message>
    <message>
        <source>Luck: %1, %2 standard deviations</source>
        <translation>Chance : %1, %2 écarts-types</translation>
    </message>
    <message>
        <source>Rolls that were not counted: %1</source>
        <translation>Lancers non comptés : %1</translation>
    </message>
</context>
<context>
    <name>TableLayout</name>
    <message>
        <source>PAYS</source>
        <translation>PAIE</translation>
    </message>
    <message>
        <source>HOPS</source>
        <translation>HOPS</translation>
    </message>
    <message>
        <source>%1  PAIRS %2</source>
        <extracomment>On the felt: what a hop pays, and what a pair pays.</extracomment>
        <translation>%1  DOUBLES %2</translation>
    </message>
    <message>
        <source>ONE ROLL</source>
        <translation>UN LANCER</translation>
    </message>
    <message>
        <source>HARDWAYS</source>
        <translation>HARDWAYS</translation>
    </message>
    <message>
        <source>SIDE BETS</source>
        <translation>MISES ANNEXES</translation>
    </message>
</context>
<context>
    <name>TableTouch</name>
    <message>
        <source>Bet %1</source>
        <translation>Miser %1</translation>
    </message>
    <message>
        <source>Take down</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Call ON</source>
        <translation>Déclarer ON</translation>
    </message>
    <message>
        <source>Call OFF</source>
        <translation>Déclarer OFF</translation>
    </message>
    <message>
        <source>Buy</source>
        <translation>Acheter</translation>
    </message>
    <message>
        <source>Roll the dice</source>
        <translation>Lancer les dés</translation>
    </message>
</context>
<context>
    <name>ToolMenu</name>
    <message>
        <source>&amp;Print ...</source>
        <translation>&amp;Imprimer ...</translation>
    </message>
    <message>
        <source>Print pre&amp;view ...</source>
        <translation>&amp;Aperçu avant impression ...</translation>
    </message>
    <message>
        <source>Save as P&amp;DF ...</source>
        <translation>Enregistrer en P&amp;DF ...</translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation>&amp;Tout copier</translation>
    </message>
    <message>
        <source>&amp;Export table (CSV) ...</source>
        <translation>Exporter le tableau (&amp;CSV) ...</translation>
    </message>
    <message>
        <source>Export p&amp;icture (PNG) ...</source>
        <translation>Exporter &amp;l&apos;image (PNG) ...</translation>
    </message>
    <message>
        <source>Export drawin&amp;g (SVG) ...</source>
        <translation>Exporter le de&amp;ssin (SVG) ...</translation>
    </message>
    <message>
        <source>Dock at the &amp;right</source>
        <translation>Ancrer à d&amp;roite</translation>
    </message>
    <message>
        <source>Dock &amp;below</source>
        <translation>Ancrer en &amp;bas</translation>
    </message>
    <message>
        <source>Dock at the &amp;left</source>
        <translation>Ancrer à &amp;gauche</translation>
    </message>
    <message>
        <source>&amp;Window of its own</source>
        <translation>Fenêtre à &amp;part</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>F&amp;ermer</translation>
    </message>
    <message>
        <source>&amp;Output</source>
        <translation>&amp;Sortie</translation>
    </message>
    <message>
        <source>P&amp;lace</source>
        <translation>&amp;Place</translation>
    </message>
</context>
<context>
    <name>tessaryn::AdjustEdit</name>
    <message>
        <source>%1: operator</source>
        <translation>%1 : opérateur</translation>
    </message>
    <message>
        <source>plus</source>
        <translation>plus</translation>
    </message>
    <message>
        <source>minus</source>
        <translation>moins</translation>
    </message>
    <message>
        <source>times</source>
        <translation>fois</translation>
    </message>
    <message>
        <source>divided by</source>
        <translation>divisé par</translation>
    </message>
    <message>
        <source>%1: amount</source>
        <translation>%1 : montant</translation>
    </message>
    <message>
        <source>%1: unit</source>
        <translation>%1 : unité</translation>
    </message>
    <message>
        <source>(number)</source>
        <translation>(nombre)</translation>
    </message>
    <message>
        <source>dollars</source>
        <translation>dollars</translation>
    </message>
    <message>
        <source>percent</source>
        <translation>pour cent</translation>
    </message>
    <message>
        <source>%1 units</source>
        <translation>unités de %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::AdvantagePage</name>
    <message>
        <source>by the point</source>
        <translation>selon le point</translation>
    </message>
    <message>
        <source>in shares</source>
        <translation>en parts</translation>
    </message>
    <message>
        <source>by its table</source>
        <translation>selon sa table</translation>
    </message>
    <message>
        <source>Advantage</source>
        <translation>Avantage</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Mise</translation>
    </message>
    <message>
        <source>EV/Roll</source>
        <translation>Esp./lancer</translation>
    </message>
    <message>
        <source>StDev/Roll</source>
        <translation>ÉT/lancer</translation>
    </message>
    <message>
        <source>EV/Dec</source>
        <translation>Esp./déc.</translation>
    </message>
    <message>
        <source>StDev/Dec</source>
        <translation>ÉT/déc.</translation>
    </message>
    <message>
        <source>EV/Hour</source>
        <translation>Esp./heure</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Posé</translation>
    </message>
    <message>
        <source>Up/Hour</source>
        <translation>Posé/heure</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Rolls/Dec</source>
        <translation>Lancers/déc.</translation>
    </message>
    <message>
        <source>Time/Dec</source>
        <translation>Temps/déc.</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Paie</translation>
    </message>
    <message>
        <source>EV and deviation in dollars on the bet amount. Up: what the player has on the table, and what it is expected to bring in an hour. Session: what was to be expected of the bets that this session decided.</source>
        <translation>Espérance et écart-type en dollars pour le montant misé. Posé : ce que le joueur a sur la table, et ce qu&apos;on en attend en une heure. Session : ce qu&apos;on pouvait attendre des mises que cette session a décidées.</translation>
    </message>
    <message>
        <source>Bet amount</source>
        <translation>Montant de la mise</translation>
    </message>
    <message>
        <source>Bet &amp;amount</source>
        <translation>&amp;Montant de la mise</translation>
    </message>
    <message>
        <source>&amp;Player</source>
        <translation>&amp;Joueur</translation>
    </message>
    <message>
        <source>Sort &amp;by</source>
        <translation>&amp;Trier par</translation>
    </message>
    <message>
        <source>&amp;Only bets that are up</source>
        <translation>&amp;Seulement les mises posées</translation>
    </message>
    <message>
        <source>Include &amp;zero outcomes</source>
        <translation>Inclure les issues &amp;nulles</translation>
    </message>
    <message>
        <source>Show &amp;misc data</source>
        <translation>Autres &amp;données</translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation>Il n&apos;y a pas de joueur à la table.</translation>
    </message>
    <message>
        <source>%1 has no bets up.</source>
        <translation>%1 n&apos;a aucune mise posée.</translation>
    </message>
    <message>
        <source>At %1 rolls an hour the bets that %2 has up are expected to bring %3 an hour</source>
        <translation>À %1 lancers par heure, on attend des mises posées de %2 %3 par heure</translation>
    </message>
    <message>
        <source> Odds are counted while a point is on, and Come and Don&apos;t Come bets are made while one is.</source>
        <translation> Les Odds comptent tant qu&apos;un point est posé, et Come et Don&apos;t Come se misent alors.</translation>
    </message>
    <message>
        <source> How far an hour strays from that is left out: what %1 has in common with the other bets can&apos;t be told.</source>
        <translation> L&apos;écart autour de cela est laissé de côté : on ne peut dire ce que %1 a de commun avec les autres mises.</translation>
    </message>
    <message>
        <source>No bet has been decided in this session.</source>
        <translation>Aucune mise n&apos;a été décidée dans cette session.</translation>
    </message>
    <message>
        <source>This session decided %1 of bets: %2 was to be expected of them, %3 it came to.</source>
        <translation>Cette session a décidé %1 de mises : on en attendait %2, il en est venu %3.</translation>
    </message>
    <message>
        <source>%1% of all</source>
        <translation>%1 % sur toutes</translation>
    </message>
    <message>
        <source>%1% of winners</source>
        <translation>%1 % sur les gagnantes</translation>
    </message>
    <message>
        <source>Dice: %1. A roll takes %2. Buy vig: %3. Lay vig: %4. Bar: %5. %6</source>
        <translation>Dés : %1. Un lancer dure %2. Vig Buy : %3. Vig Lay : %4. Barre : %5. %6</translation>
    </message>
    <message>
        <source>percentage dice</source>
        <translation>dés à pourcentages</translation>
    </message>
    <message>
        <source>fair</source>
        <translation>justes</translation>
    </message>
    <message>
        <source>Rolls that leave a bet in place count as decisions.</source>
        <translation>Les lancers qui laissent une mise en place comptent comme décisions.</translation>
    </message>
    <message>
        <source>Only wins and losses count as decisions.</source>
        <translation>Seuls gains et pertes comptent comme décisions.</translation>
    </message>
    <message>
        <source>%1, give or take %2</source>
        <translation>%1, à %2 près</translation>
    </message>
</context>
<context>
    <name>tessaryn::AmountSelector</name>
    <message>
        <source>Bet amount</source>
        <translation>Montant de la mise</translation>
    </message>
    <message>
        <source>Amount that a click bets</source>
        <translation>Montant que mise un clic</translation>
    </message>
    <message>
        <source>The amount that a click bets</source>
        <translation>Le montant que mise un clic</translation>
    </message>
    <message>
        <source>Bet %1 a click</source>
        <translation>Miser %1 par clic</translation>
    </message>
</context>
<context>
    <name>tessaryn::AtmScreen</name>
    <message>
        <source>ATM</source>
        <translation>Distributeur</translation>
    </message>
    <message>
        <source>Bankroll:</source>
        <translation>Bankroll :</translation>
    </message>
    <message>
        <source>On the table:</source>
        <translation>Sur la table :</translation>
    </message>
    <message>
        <source>Rail:</source>
        <translation>Rail :</translation>
    </message>
    <message>
        <source>Drawn from the ATM:</source>
        <translation>Retiré au distributeur :</translation>
    </message>
    <message>
        <source>Allow &amp;negative bankroll</source>
        <translation>Permettre une bankroll &amp;négative</translation>
    </message>
    <message>
        <source>The ATM is switched off in the configuration.</source>
        <translation>Le distributeur est coupé dans la configuration.</translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation>&amp;Montant :</translation>
    </message>
    <message>
        <source>&amp;Withdraw</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>&amp;Deposit</source>
        <translation>&amp;Déposer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>tessaryn::AutoPlayScreen</name>
    <message>
        <source>Auto-&amp;take full odds</source>
        <translation>&amp;Prendre toutes les Odds d&apos;office</translation>
    </message>
    <message>
        <source>On Pass Line and Come, when a point is set and when the flat bet changes</source>
        <translation>Sur Pass Line et Come, quand un point est posé et quand la mise de base change</translation>
    </message>
    <message>
        <source>Auto-&amp;lay full odds</source>
        <translation>&amp;Déposer toutes les Odds d&apos;office</translation>
    </message>
    <message>
        <source>On Don&apos;t Pass and Don&apos;t Come, when a point is set and when the flat bet changes</source>
        <translation>Sur Don&apos;t Pass et Don&apos;t Come, quand un point est posé et quand la mise de base change</translation>
    </message>
    <message>
        <source>Auto-&amp;down Place bets</source>
        <translation>&amp;Retirer d&apos;office les mises Place</translation>
    </message>
    <message>
        <source>Place and Buy bets on the number of a line or Come bet come down</source>
        <translation>Les mises Place et Buy sur le numéro d&apos;une mise de ligne ou Come sont retirées</translation>
    </message>
    <message>
        <source>Auto-&amp;pass the dice</source>
        <translation>P&amp;asser les dés d&apos;office</translation>
    </message>
    <message>
        <source>The player never shoots</source>
        <translation>Le joueur ne lance jamais</translation>
    </message>
    <message>
        <source>Place and Buy:</source>
        <translation>Place et Buy :</translation>
    </message>
    <message>
        <source>Do side, others:</source>
        <translation>Côté Do, autres :</translation>
    </message>
    <message>
        <source>Don&apos;t side:</source>
        <translation>Côté Don&apos;t :</translation>
    </message>
    <message>
        <source>Lay:</source>
        <translation>Lay :</translation>
    </message>
    <message>
        <source> Manual</source>
        <translation> Manuel</translation>
    </message>
    <message>
        <source> Auto w/ minor correction</source>
        <translation> Auto avec petite correction</translation>
    </message>
    <message>
        <source> Auto w/ color correction</source>
        <translation> Auto avec correction de couleur</translation>
    </message>
    <message>
        <source>Auto-Play</source>
        <translation>Auto-Play</translation>
    </message>
    <message>
        <source>Pla&amp;yer:</source>
        <translation>&amp;Joueur :</translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation>Il n&apos;y a pas de joueur à la table.</translation>
    </message>
    <message>
        <source>Winning bets</source>
        <translation>Mises gagnantes</translation>
    </message>
    <message>
        <source>Losing bets</source>
        <translation>Mises perdantes</translation>
    </message>
    <message>
        <source>Bet amounts that pay whole</source>
        <translation>Montants qui paient juste</translation>
    </message>
    <message>
        <source>By the change</source>
        <translation>Selon la monnaie</translation>
    </message>
    <message>
        <source>Upward</source>
        <translation>Vers le haut</translation>
    </message>
    <message>
        <source>Downward</source>
        <translation>Vers le bas</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Work on come-out</source>
        <translation>Travailler au come-out</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout choisir</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
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
        <translation>Joueur</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Modes, averages, colors, printing</source>
        <translation>Modes, moyennes, couleurs, impression</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Actuel</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Reference line %1</source>
        <translation>Repère %1</translation>
    </message>
    <message>
        <source>Bankroll dif</source>
        <translation>Écart de bankroll</translation>
    </message>
    <message>
        <source>Graph up</source>
        <translation>Monter la courbe</translation>
    </message>
    <message>
        <source>Graph down</source>
        <translation>Descendre la courbe</translation>
    </message>
    <message>
        <source>Smaller scale</source>
        <translation>Échelle plus petite</translation>
    </message>
    <message>
        <source>- Scale</source>
        <translation>- Échelle</translation>
    </message>
    <message>
        <source>Larger scale</source>
        <translation>Échelle plus grande</translation>
    </message>
    <message>
        <source>Scale +</source>
        <translation>Échelle +</translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation>Vitesse de la série</translation>
    </message>
    <message>
        <source>Start Turbo-Roll</source>
        <translation>Démarrer le Turbo-Roll</translation>
    </message>
    <message>
        <source>fast</source>
        <translation>rapide</translation>
    </message>
    <message>
        <source>slow</source>
        <translation>lent</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 lancer</numerusform>
            <numerusform>%1 lancers</numerusform>
        </translation>
    </message>
    <message>
        <source>@ %1 rolls/hr</source>
        <translation>à %1 lancers/h</translation>
    </message>
    <message>
        <source>= %1 sim hrs</source>
        <translation>= %1 h sim.</translation>
    </message>
    <message>
        <source>Rolls diff</source>
        <translation>Écart en lancers</translation>
    </message>
    <message>
        <source>Plot &amp;type</source>
        <translation>&amp;Type de tracé</translation>
    </message>
    <message>
        <source>&amp;Page</source>
        <translation>&amp;Page</translation>
    </message>
    <message>
        <source>&amp;Scroll</source>
        <translation>&amp;Défilement</translation>
    </message>
    <message>
        <source>Ad&amp;just scale</source>
        <translation>A&amp;juster l&apos;échelle</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manuel</translation>
    </message>
    <message>
        <source>Auto-&amp;shift </source>
        <translation>Décalage &amp;auto </translation>
    </message>
    <message>
        <source>Auto-shift with &amp;expanding scale</source>
        <translation>Décalage auto, échelle qui s&apos;é&amp;tend</translation>
    </message>
    <message>
        <source>Auto-shift with s&amp;nap-back scale</source>
        <translation>Décalage auto, échelle qui re&amp;vient</translation>
    </message>
    <message>
        <source>Display &amp;grid lines</source>
        <translation>Afficher la &amp;grille</translation>
    </message>
    <message>
        <source>Display &amp;reference lines</source>
        <translation>Afficher les &amp;repères</translation>
    </message>
    <message>
        <source>Display moving &amp;average</source>
        <translation>Afficher la mo&amp;yenne mobile</translation>
    </message>
    <message>
        <source>Set &amp;moving average ...</source>
        <translation>Régler la &amp;moyenne mobile ...</translation>
    </message>
    <message>
        <source>&amp;Players together</source>
        <translation>Joueurs e&amp;nsemble</translation>
    </message>
    <message>
        <source>Graph st&amp;yle</source>
        <translation>&amp;Style de courbe</translation>
    </message>
    <message>
        <source>&amp;Plain</source>
        <translation>&amp;Simple</translation>
    </message>
    <message>
        <source>&amp;Striped</source>
        <translation>&amp;Rayé</translation>
    </message>
    <message>
        <source>S&amp;olid</source>
        <translation>&amp;Plein</translation>
    </message>
    <message>
        <source>Set &amp;color</source>
        <translation>&amp;Couleurs</translation>
    </message>
    <message>
        <source>&amp;Background ...</source>
        <translation>&amp;Fond ...</translation>
    </message>
    <message>
        <source>&amp;Text ...</source>
        <translation>&amp;Texte ...</translation>
    </message>
    <message>
        <source>&amp;Grid lines ...</source>
        <translation>&amp;Grille ...</translation>
    </message>
    <message>
        <source>&amp;Start of the session ...</source>
        <translation>&amp;Début de la session ...</translation>
    </message>
    <message>
        <source>Bank&amp;roll ...</source>
        <translation>Bank&amp;roll ...</translation>
    </message>
    <message>
        <source>&amp;Area under the bankroll ...</source>
        <translation>&amp;Aire sous la bankroll ...</translation>
    </message>
    <message>
        <source>&amp;Moving average ...</source>
        <translation>&amp;Moyenne mobile ...</translation>
    </message>
    <message>
        <source>Reference line &amp;1 ...</source>
        <translation>Repère &amp;1 ...</translation>
    </message>
    <message>
        <source>Reference line &amp;2 ...</source>
        <translation>Repère &amp;2 ...</translation>
    </message>
    <message>
        <source>&amp;Pointer ...</source>
        <translation>&amp;Pointeur ...</translation>
    </message>
    <message>
        <source>&amp;Default colors</source>
        <translation>Couleurs d&apos;&amp;origine</translation>
    </message>
    <message>
        <source>Print &amp;now</source>
        <translation>&amp;Imprimer maintenant</translation>
    </message>
    <message>
        <source>A&amp;uto-print</source>
        <translation>Impression &amp;automatique</translation>
    </message>
    <message>
        <source>Grap&amp;hs on a page</source>
        <translation>Courbes par pag&amp;e</translation>
    </message>
    <message>
        <source>Set Auto-Roll time &amp;delay ...</source>
        <translation>Dé&amp;lai d&apos;Auto-Roll ...</translation>
    </message>
    <message>
        <source>Set Auto-St&amp;op ...</source>
        <translation>Arrêt aut&amp;omatique ...</translation>
    </message>
    <message>
        <source>Show &amp;logged messages</source>
        <translation>A&amp;fficher les messages notés</translation>
    </message>
</context>
<context>
    <name>tessaryn::Board</name>
    <message>
        <source>Skip</source>
        <translation>Passer</translation>
    </message>
    <message>
        <source>The first steps aren&apos;t shown again</source>
        <translation>Les premiers pas ne sont plus montrés</translation>
    </message>
    <message>
        <source>ask me</source>
        <translation>me demander</translation>
    </message>
    <message>
        <source>leave the bet, take the winnings</source>
        <translation>laisser la mise, prendre les gains</translation>
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
        <translation>Dernier lancer</translation>
    </message>
    <message>
        <source>When a bet wins:</source>
        <translation>Quand une mise gagne :</translation>
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
        <translation>Cliquez sur une place libre du rail pour ajouter un joueur.</translation>
    </message>
    <message>
        <source>No roll yet</source>
        <translation>Pas encore de lancer</translation>
    </message>
    <message>
        <source>LAST %1</source>
        <translation>%1 DERNIERS</translation>
    </message>
    <message numerus="yes">
        <source>%1 notes:</source>
        <translation>
            <numerusform>%1 note :</numerusform>
            <numerusform>%1 notes :</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::CheckStackList</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Place %1 at the rail</source>
        <translation>Poser %1 sur le rail</translation>
    </message>
</context>
<context>
    <name>tessaryn::CheckStackView</name>
    <message>
        <source>Value of CheckStack %1</source>
        <translation>Valeur du CheckStack %1</translation>
    </message>
    <message>
        <source>Name of CheckStack %1</source>
        <translation>Nom du CheckStack %1</translation>
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
        <translation>Joueur</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Undo, clipboard, deletions, the stacks on the table</source>
        <translation>Annuler, presse-papiers, suppressions, les piles sur la table</translation>
    </message>
    <message>
        <source>On the table</source>
        <translation>Sur la table</translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation>&amp;Accepter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Und&amp;o	Ctrl+Z</source>
        <translation>&amp;Annuler	Ctrl+Z</translation>
    </message>
    <message>
        <source>&amp;Redo	Ctrl+Y</source>
        <translation>&amp;Rétablir	Ctrl+Y</translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation>&amp;Couper	Ctrl+X</translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation>Co&amp;pier	Ctrl+C</translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation>C&amp;oller	Ctrl+V</translation>
    </message>
    <message>
        <source>&amp;Delete	Del</source>
        <translation>&amp;Supprimer	Del</translation>
    </message>
    <message>
        <source>Delete &amp;all</source>
        <translation>&amp;Tout supprimer</translation>
    </message>
    <message>
        <source>Delete all val&amp;ues</source>
        <translation>Supprimer toutes les &amp;valeurs</translation>
    </message>
    <message>
        <source>Delete all &amp;names</source>
        <translation>Supprimer tous les &amp;noms</translation>
    </message>
    <message>
        <source>&amp;Set visible checkstacks</source>
        <translation>Choisir les CheckStacks v&amp;isibles</translation>
    </message>
    <message>
        <source>Display &amp;zero values</source>
        <translation>Afficher les valeurs n&amp;ulles</translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation>Taille de &amp;la police</translation>
    </message>
    <message>
        <source>&amp;Desktop&apos;s</source>
        <translation>Celle du &amp;bureau</translation>
    </message>
    <message>
        <source>CheckStacks of %1</source>
        <translation>CheckStacks de %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>tessaryn::CompsPage</name>
    <message>
        <source>Total comp action</source>
        <translation>Action totale pour les comps</translation>
    </message>
    <message>
        <source>Comp bets decided</source>
        <translation>Mises comptées décidées</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Lancers</translation>
    </message>
    <message>
        <source>Expected result</source>
        <translation>Résultat attendu</translation>
    </message>
    <message>
        <source>Avg action x time</source>
        <translation>Action moyenne x temps</translation>
    </message>
    <message>
        <source>Comp value</source>
        <translation>Valeur des comps</translation>
    </message>
    <message>
        <source>Comps so far</source>
        <translation>Comps à ce jour</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Joueur</translation>
    </message>
    <message>
        <source>Scope</source>
        <translation>Portée</translation>
    </message>
    <message>
        <source>Bets figured in comps</source>
        <translation>Mises comptées pour les comps</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Mise</translation>
    </message>
    <message>
        <source>Comps</source>
        <translation>Comps</translation>
    </message>
    <message>
        <source>Wagered</source>
        <translation>Misé</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Attendu</translation>
    </message>
    <message>
        <source>A double click or the space bar changes a bet.</source>
        <translation>Un double clic ou la barre d&apos;espace change une mise.</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout choisir</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Trier par</translation>
    </message>
</context>
<context>
    <name>tessaryn::ConfigurationScreen</name>
    <message>
        <source>House</source>
        <translation>Maison</translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Mises</translation>
    </message>
    <message>
        <source>Payoffs</source>
        <translation>Gains</translation>
    </message>
    <message>
        <source>Advantage</source>
        <translation>Avantage</translation>
    </message>
    <message>
        <source>Comps</source>
        <translation>Comps</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Tapis</translation>
    </message>
    <message>
        <source>Bankroll</source>
        <translation>Bankroll</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Probability</source>
        <translation>Probabilité</translation>
    </message>
    <message>
        <source>Generator</source>
        <translation>Générateur</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Misc</source>
        <translation>Divers</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation>Chercher un réglage</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Onglets</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Not taken yet: %1. %2</source>
        <translation>Pas encore pris : %1. %2</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Onglet</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>A double click or the space bar changes a bet. New players take this as they buy in.</source>
        <translation>Un double clic ou la barre d&apos;espace change une mise. Les nouveaux joueurs reçoivent ceci en entrant.</translation>
    </message>
    <message>
        <source> - Yes</source>
        <translation> - Oui</translation>
    </message>
    <message>
        <source> - No</source>
        <translation> - Non</translation>
    </message>
    <message>
        <source>Work on come-out roll</source>
        <translation>Travailler au come-out</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout choisir</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Jetons</translation>
    </message>
    <message>
        <source>Restore default denominations</source>
        <translation>Rétablir les valeurs d&apos;origine</translation>
    </message>
    <message>
        <source>Amount to add or subtract</source>
        <translation>Montant à ajouter ou à ôter</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation>Ôter</translation>
    </message>
    <message>
        <source>Add or subtract</source>
        <translation>Ajouter ou ôter</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Joueur</translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation>Il n&apos;y a pas de joueur à la table.</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>Sons</translation>
    </message>
    <message>
        <source>Stick person</source>
        <translation>Stickman</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Dés</translation>
    </message>
    <message>
        <source>Wins</source>
        <translation>Gains</translation>
    </message>
    <message>
        <source>&lt; none &gt;</source>
        <translation>&lt; aucun &gt;</translation>
    </message>
    <message>
        <source>Stick person 1</source>
        <translation>Stickman 1</translation>
    </message>
    <message>
        <source>&lt; random &gt;</source>
        <translation>&lt; au hasard &gt;</translation>
    </message>
    <message>
        <source>Try</source>
        <translation>Essai</translation>
    </message>
    <message>
        <source>Try: %1</source>
        <translation>Essai : %1</translation>
    </message>
    <message>
        <source>The program&apos;s sound files aren&apos;t there.</source>
        <translation>Les fichiers de sons du programme ne sont pas là.</translation>
    </message>
    <message>
        <source>Rolls / hr</source>
        <translation>Lancers / h</translation>
    </message>
    <message>
        <source>Rolls / min</source>
        <translation>Lancers / min</translation>
    </message>
    <message>
        <source>Rolls / sec</source>
        <translation>Lancers / s</translation>
    </message>
    <message>
        <source>Hrs / roll</source>
        <translation>H / lancer</translation>
    </message>
    <message>
        <source>Mins / roll</source>
        <translation>Min / lancer</translation>
    </message>
    <message>
        <source>Secs / roll</source>
        <translation>S / lancer</translation>
    </message>
    <message>
        <source>How the rate is shown</source>
        <translation>Comment la cadence est montrée</translation>
    </message>
    <message>
        <source>Simulated roll rate</source>
        <translation>Cadence simulée des lancers</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>Odds</source>
        <translation>Odds</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>Règles</translation>
    </message>
    <message>
        <source>Buy bets</source>
        <translation>Mises Buy</translation>
    </message>
    <message>
        <source>Lay bets</source>
        <translation>Mises Lay</translation>
    </message>
    <message>
        <source>Bets on the table</source>
        <translation>Mises de la table</translation>
    </message>
    <message>
        <source>Stacks and amounts</source>
        <translation>Piles et montants</translation>
    </message>
    <message>
        <source>New players</source>
        <translation>Nouveaux joueurs</translation>
    </message>
    <message>
        <source>ATM</source>
        <translation>Distributeur</translation>
    </message>
    <message>
        <source>All sounds</source>
        <translation>Tous les sons</translation>
    </message>
    <message>
        <source>Messages to show</source>
        <translation>Messages à montrer</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Pointeur</translation>
    </message>
    <message>
        <source>Font size of the screens</source>
        <translation>Taille de police des écrans</translation>
    </message>
    <message>
        <source>Dice on the table</source>
        <translation>Dés sur la table</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Figure comps based on:</source>
        <translation>Comps calculés sur :</translation>
    </message>
    <message>
        <source>For every new session:</source>
        <translation>À chaque nouvelle session :</translation>
    </message>
    <message>
        <source>dollars</source>
        <translation>dollars</translation>
    </message>
    <message>
        <source>x flat bet</source>
        <translation>x mise de base</translation>
    </message>
    <message>
        <source> Bar 12</source>
        <translation> Barre 12</translation>
    </message>
    <message>
        <source> Bar 2</source>
        <translation> Barre 2</translation>
    </message>
    <message>
        <source> Small</source>
        <translation> Petite</translation>
    </message>
    <message>
        <source> Medium</source>
        <translation> Moyenne</translation>
    </message>
    <message>
        <source> Large</source>
        <translation> Grande</translation>
    </message>
    <message>
        <source>Minimum bet</source>
        <translation>Mise minimale</translation>
    </message>
    <message>
        <source>Minimum prop bet</source>
        <translation>Mise minimale des propositions</translation>
    </message>
    <message>
        <source>Maximum bet</source>
        <translation>Mise maximale</translation>
    </message>
    <message>
        <source>Max prop bet payoff</source>
        <translation>Gain maximal des propositions</translation>
    </message>
    <message>
        <source>Maximum odds bet</source>
        <translation>Mise Odds maximale</translation>
    </message>
    <message>
        <source>Odds on 4 and 10</source>
        <translation>Odds sur 4 et 10</translation>
    </message>
    <message>
        <source>Odds on 5 and 9</source>
        <translation>Odds sur 5 et 9</translation>
    </message>
    <message>
        <source>Odds on 6 and 8</source>
        <translation>Odds sur 6 et 8</translation>
    </message>
    <message>
        <source>Odds calculation</source>
        <translation>Calcul des Odds</translation>
    </message>
    <message>
        <source>To shoot</source>
        <translation>Pour lancer</translation>
    </message>
    <message>
        <source>Don&apos;t side</source>
        <translation>Côté Don&apos;t</translation>
    </message>
    <message>
        <source>Allow Put bets</source>
        <translation>Permettre les mises Put</translation>
    </message>
    <message>
        <source>Return abandoned bets</source>
        <translation>Rendre les mises abandonnées</translation>
    </message>
    <message>
        <source>Vig</source>
        <translation>Vig</translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation>Arrondi</translation>
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
        <translation>Big 6 et Big 8</translation>
    </message>
    <message>
        <source>Midway bet</source>
        <translation>Mise Midway</translation>
    </message>
    <message>
        <source>Special prop bets</source>
        <translation>Propositions spéciales</translation>
    </message>
    <message>
        <source>Fire bet</source>
        <translation>Mise Fire</translation>
    </message>
    <message>
        <source>Max Fire bet</source>
        <translation>Mise Fire maximale</translation>
    </message>
    <message>
        <source>Auto-arrange checks</source>
        <translation>Ranger les jetons</translation>
    </message>
    <message>
        <source>Use cents symbol below a dollar</source>
        <translation>Signe cent sous un dollar</translation>
    </message>
    <message>
        <source>First check</source>
        <translation>Premier jeton</translation>
    </message>
    <message>
        <source>Second check</source>
        <translation>Deuxième jeton</translation>
    </message>
    <message>
        <source>Third check</source>
        <translation>Troisième jeton</translation>
    </message>
    <message>
        <source>Fourth check</source>
        <translation>Quatrième jeton</translation>
    </message>
    <message>
        <source>Fifth check</source>
        <translation>Cinquième jeton</translation>
    </message>
    <message>
        <source>Allow negative bankroll</source>
        <translation>Permettre une bankroll négative</translation>
    </message>
    <message>
        <source>At a new session</source>
        <translation>À une nouvelle session</translation>
    </message>
    <message>
        <source>New session&apos;s bankroll</source>
        <translation>Bankroll de la nouvelle session</translation>
    </message>
    <message>
        <source>Bankroll offered</source>
        <translation>Bankroll proposée</translation>
    </message>
    <message>
        <source>The ATM works</source>
        <translation>Le distributeur fonctionne</translation>
    </message>
    <message>
        <source>Usual amount</source>
        <translation>Montant habituel</translation>
    </message>
    <message>
        <source>Sounds of auto-bet scripts</source>
        <translation>Sons des scripts Auto-Bet</translation>
    </message>
    <message>
        <source>Disable all sound</source>
        <translation>Couper tous les sons</translation>
    </message>
    <message>
        <source>Info tips</source>
        <translation>Info-bulles</translation>
    </message>
    <message>
        <source>Snap to the default button of a box</source>
        <translation>Aller au bouton par défaut d&apos;une boîte</translation>
    </message>
    <message>
        <source>Print in colors</source>
        <translation>Imprimer en couleurs</translation>
    </message>
    <message>
        <source>Use true probabilities</source>
        <translation>Utiliser les vraies probabilités</translation>
    </message>
    <message>
        <source>Comp rate</source>
        <translation>Taux des comps</translation>
    </message>
</context>
<context>
    <name>tessaryn::EventsLogScreen</name>
    <message>
        <source>Everything</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Lancers</translation>
    </message>
    <message>
        <source>Rolls, passes and misses</source>
        <translation>Lancers, passes et misses</translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Mises</translation>
    </message>
    <message>
        <source>Wins and losses</source>
        <translation>Gains et pertes</translation>
    </message>
    <message>
        <source>Wins</source>
        <translation>Gains</translation>
    </message>
    <message>
        <source>Losses</source>
        <translation>Pertes</translation>
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
        <translation>Lanceurs et mains</translation>
    </message>
    <message>
        <source>Sessions, players, scripts</source>
        <translation>Sessions, joueurs, scripts</translation>
    </message>
    <message>
        <source>Lo&amp;g</source>
        <translation>&amp;Journal</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Ouvrir ...</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Enregistrer &amp;sous ...</translation>
    </message>
    <message>
        <source>&amp;Look at another log ...</source>
        <translation>&amp;Regarder un autre journal ...</translation>
    </message>
    <message>
        <source>&amp;Back to the table&apos;s log</source>
        <translation>Revenir au journal de la &amp;table</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>Che&amp;rcher</translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Chercher ...</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>O&amp;ptions</translation>
    </message>
    <message>
        <source>Record &amp;events</source>
        <translation>Enregistrer les &amp;événements</translation>
    </message>
    <message>
        <source>&amp;Rolls</source>
        <translation>&amp;Lancers</translation>
    </message>
    <message>
        <source>&amp;Bet changes</source>
        <translation>Changements de &amp;mise</translation>
    </message>
    <message>
        <source>Bets &amp;won</source>
        <translation>Mises &amp;gagnées</translation>
    </message>
    <message>
        <source>Bets &amp;lost</source>
        <translation>Mises p&amp;erdues</translation>
    </message>
    <message>
        <source>CheckS&amp;tack changes</source>
        <translation>Changements de CheckS&amp;tack</translation>
    </message>
    <message>
        <source>&amp;Passes and misses</source>
        <translation>&amp;Passes et misses</translation>
    </message>
    <message>
        <source>S&amp;hooter changes</source>
        <translation>Changements de lance&amp;ur</translation>
    </message>
    <message>
        <source>Ban&amp;kroll changes</source>
        <translation>Changements de ban&amp;kroll</translation>
    </message>
    <message>
        <source>Record &amp;all</source>
        <translation>T&amp;out enregistrer</translation>
    </message>
    <message>
        <source>&amp;Deselect all</source>
        <translation>&amp;Ne rien enregistrer</translation>
    </message>
    <message>
        <source>&amp;Clear log when new sessions start</source>
        <translation>&amp;Vider le journal à une nouvelle session</translation>
    </message>
    <message>
        <source>&amp;Scroll new rolls to the top</source>
        <translation>Nouveaux lancers en &amp;haut</translation>
    </message>
    <message>
        <source>&amp;Follow the end</source>
        <translation>Suivre la &amp;fin</translation>
    </message>
    <message>
        <source>Fon&amp;t</source>
        <translation>Poli&amp;ce</translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation>&amp;Italique</translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation>&amp;Grasse</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>&amp;Plus petite</translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation>&amp;Normale</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>P&amp;lus grande</translation>
    </message>
    <message>
        <source>In&amp;active</source>
        <translation>&amp;Inactif</translation>
    </message>
    <message>
        <source>Kind of lines shown</source>
        <translation>Genre des lignes montrées</translation>
    </message>
    <message>
        <source>Player whose lines are shown</source>
        <translation>Joueur dont les lignes sont montrées</translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation>Texte à chercher</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation>Chercher le précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Chercher le suivant</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêt</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Arrêter la recherche</translation>
    </message>
    <message>
        <source>All players</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>&amp;Active</source>
        <translation>A&amp;ctif</translation>
    </message>
    <message>
        <source>Events are recorded</source>
        <translation>Les événements sont enregistrés</translation>
    </message>
    <message>
        <source>Events are not recorded</source>
        <translation>Les événements ne sont pas enregistrés</translation>
    </message>
    <message>
        <source>Events Log (%1, only looked at)</source>
        <translation>Journal des événements (%1, consulté seulement)</translation>
    </message>
    <message>
        <source>Events Log</source>
        <translation>Journal des événements</translation>
    </message>
    <message>
        <source>Events Log (%1)</source>
        <translation>Journal des événements (%1)</translation>
    </message>
    <message>
        <source>No lines</source>
        <translation>Aucune ligne</translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation>Ligne %1 sur %2</translation>
    </message>
    <message>
        <source>About line %1 of %2</source>
        <translation>Vers la ligne %1 sur %2</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>Tessaryn Events Log</source>
        <translation>Journal des événements de Tessaryn</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Print Events Log</source>
        <translation>Imprimer le journal des événements</translation>
    </message>
    <message>
        <source>%1 (%2% read)</source>
        <translation>%1 (%2 % lus)</translation>
    </message>
    <message>
        <source>Saving the log ...</source>
        <translation>Enregistrement du journal ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>tessaryn::EventsLogView</name>
    <message>
        <source>Lines of the Events Log</source>
        <translation>Lignes du journal des événements</translation>
    </message>
    <message>
        <source>Line at the top</source>
        <translation>Ligne du haut</translation>
    </message>
    <message>
        <source>Blanks to the left</source>
        <translation>Espaces à gauche</translation>
    </message>
    <message>
        <source>No such lines</source>
        <translation>Aucune ligne de ce genre</translation>
    </message>
    <message>
        <source>The log is empty</source>
        <translation>Le journal est vide</translation>
    </message>
</context>
<context>
    <name>tessaryn::FindReplaceScreen</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Chercher :</translation>
    </message>
    <message>
        <source>Replace &amp;by:</source>
        <translation>Remplacer &amp;par :</translation>
    </message>
    <message>
        <source>Find ne&amp;xt</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>Replace &amp;all</source>
        <translation>&amp;Tout remplacer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the script.</source>
        <translation>« %1 » n&apos;est pas dans le script.</translation>
    </message>
    <message numerus="yes">
        <source>%1 replaced</source>
        <translation>
            <numerusform>%1 remplacé</numerusform>
            <numerusform>%1 remplacés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::GeneratorPage</name>
    <message>
        <source>Mersenne Twister, 32 bits a number, a number for each die. The usual choice.</source>
        <translation>Mersenne Twister, 32 bits par nombre, un nombre par dé. Le choix habituel.</translation>
    </message>
    <message>
        <source>A second Mersenne Twister with a seeding of its own, a number for each die.</source>
        <translation>Un second Mersenne Twister à germe propre, un nombre par dé.</translation>
    </message>
    <message>
        <source>A plain congruence with 714,025 states: short, and good for comparing systems on poor dice. Its seeds end at 999,999.</source>
        <translation>Une congruence simple à 714 025 états : courte, bonne pour comparer des systèmes avec de mauvais dés. Ses germes s&apos;arrêtent à 999 999.</translation>
    </message>
    <message>
        <source>One congruence whose numbers are shuffled through a table of 97.</source>
        <translation>Une congruence dont les nombres sont brassés par une table de 97.</translation>
    </message>
    <message>
        <source>Three congruences: two make the number, the third shuffles a table of 97.</source>
        <translation>Trois congruences : deux font le nombre, la troisième brasse une table de 97.</translation>
    </message>
    <message>
        <source>RNG #1 and RNG #5 by turns, a roll each.</source>
        <translation>RNG #1 et RNG #5 tour à tour, un lancer chacun.</translation>
    </message>
    <message>
        <source>RNG #2 and RNG #4 by turns, a roll each.</source>
        <translation>RNG #2 et RNG #4 tour à tour, un lancer chacun.</translation>
    </message>
    <message>
        <source>As RNG #1, both dice from one number.</source>
        <translation>Comme RNG #1, les deux dés tirés d&apos;un seul nombre.</translation>
    </message>
    <message>
        <source>Random number generator</source>
        <translation>Générateur de nombres aléatoires</translation>
    </message>
    <message>
        <source>Random number &amp;generator:</source>
        <translation>&amp;Générateur de nombres aléatoires :</translation>
    </message>
    <message>
        <source>Seed</source>
        <translation>Germe</translation>
    </message>
    <message>
        <source> Seed normally</source>
        <translation> Germe normal</translation>
    </message>
    <message>
        <source> User seed</source>
        <translation> Germe de l&apos;utilisateur</translation>
    </message>
    <message>
        <source>The clock gives each seed</source>
        <translation>L&apos;horloge donne chaque germe</translation>
    </message>
    <message>
        <source>You are asked for each seed</source>
        <translation>Chaque germe vous est demandé</translation>
    </message>
    <message>
        <source> Re-seed new sessions</source>
        <translation> Nouveau germe à chaque session</translation>
    </message>
    <message>
        <source>Seed RNG now</source>
        <translation>Germer maintenant</translation>
    </message>
    <message>
        <source>Last entered seed:</source>
        <translation>Dernier germe saisi :</translation>
    </message>
</context>
<context>
    <name>tessaryn::GraphView</name>
    <message>
        <source>Bankroll graph</source>
        <translation>Courbe de bankroll</translation>
    </message>
    <message>
        <source>Roll %1:</source>
        <translation>Lancer %1 :</translation>
    </message>
</context>
<context>
    <name>tessaryn::HelpWindow</name>
    <message>
        <source>en</source>
        <extracomment>The folder of the translated help pages: two small letters, as de or fr. Not a word.</extracomment>
        <translation>fr</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avancer</translation>
    </message>
    <message>
        <source>First page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Show or hide the contents</source>
        <translation>Montrer ou cacher le sommaire</translation>
    </message>
    <message>
        <source>Smaller letters</source>
        <translation>Lettres plus petites</translation>
    </message>
    <message>
        <source>Larger letters</source>
        <translation>Lettres plus grandes</translation>
    </message>
    <message>
        <source>Find in this page</source>
        <translation>Chercher dans cette page</translation>
    </message>
    <message>
        <source>Print this page ...</source>
        <translation>Imprimer cette page ...</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Search the help</source>
        <translation>Chercher dans l&apos;aide</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>The one before</source>
        <translation>Le précédent</translation>
    </message>
    <message>
        <source>The next one</source>
        <translation>Le suivant</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Nothing was found for &quot;%1&quot;. Try fewer words, or the beginning of one.</source>
        <translation>Rien trouvé pour « %1 ». Essayez moins de mots, ou le début d&apos;un mot.</translation>
    </message>
    <message>
        <source>The pages of the help aren&apos;t where the program is. They lie in the folder &quot;docs&quot; of its source and of its packages.</source>
        <translation>Les pages de l&apos;aide ne sont pas là où est le programme. Elles sont dans le dossier « docs » de ses sources et de ses paquets.</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Not on this page</source>
        <translation>Pas dans cette page</translation>
    </message>
</context>
<context>
    <name>tessaryn::HotKeysScreen</name>
    <message>
        <source>Hot-Keys</source>
        <translation>Touches de raccourci</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>Auto-Bet file</source>
        <translation>Fichier Auto-Bet</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>&amp;Touche :</translation>
    </message>
    <message>
        <source>Auto-Bet &amp;file:</source>
        <translation>&amp;Fichier Auto-Bet :</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Description :</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Select ...</source>
        <translation>&amp;Choisir ...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
</context>
<context>
    <name>tessaryn::HousePage</name>
    <message>
        <source>Houses</source>
        <translation>Maisons</translation>
    </message>
    <message>
        <source>What the house changes</source>
        <translation>Ce que la maison change</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>House</source>
        <translation>Maison</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Ouvrir ...</translation>
    </message>
    <message>
        <source>&amp;Save rules as ...</source>
        <translation>&amp;Enregistrer les règles sous ...</translation>
    </message>
    <message>
        <source>&amp;Use this house</source>
        <translation>&amp;Utiliser cette maison</translation>
    </message>
    <message>
        <source>The table has these rules.</source>
        <translation>La table a ces règles.</translation>
    </message>
</context>
<context>
    <name>tessaryn::JoinScreen</name>
    <message>
        <source>&amp;Join</source>
        <translation>&amp;Entrer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>How much would %1 like to buy-in for?</source>
        <translation>Avec combien %1 prend-il place à la table ?</translation>
    </message>
</context>
<context>
    <name>tessaryn::LaboratoryScreen</name>
    <message>
        <source>Laboratory</source>
        <translation>Laboratoire</translation>
    </message>
    <message>
        <source>Sessions played</source>
        <translation>Sessions jouées</translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation>&amp;Fin</translation>
    </message>
    <message>
        <source>Ends the experiment with what is known</source>
        <translation>Finit l&apos;expérience avec ce qui est connu</translation>
    </message>
    <message>
        <source>Comp&amp;are A</source>
        <translation>&amp;Comparer A</translation>
    </message>
    <message>
        <source>System A</source>
        <translation>Système A</translation>
    </message>
    <message>
        <source>&amp;with B</source>
        <translation>&amp;avec B</translation>
    </message>
    <message>
        <source>System B</source>
        <translation>Système B</translation>
    </message>
    <message>
        <source>Pages of the laboratory</source>
        <translation>Pages du laboratoire</translation>
    </message>
    <message>
        <source>E&amp;xperiment</source>
        <translation>&amp;Expérience</translation>
    </message>
    <message>
        <source>Measures</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <source>Res&amp;ults</source>
        <translation>Résu&amp;ltats</translation>
    </message>
    <message>
        <source>On the wa&amp;y</source>
        <translation>En &amp;route</translation>
    </message>
    <message>
        <source>E&amp;nds</source>
        <translation>&amp;Issues</translation>
    </message>
    <message>
        <source>All systems</source>
        <translation>Tous les systèmes</translation>
    </message>
    <message>
        <source>All s&amp;ystems</source>
        <translation>Tous les s&amp;ystèmes</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Number of the session</source>
        <translation>Numéro de la session</translation>
    </message>
    <message>
        <source>System of the session</source>
        <translation>Système de la session</translation>
    </message>
    <message>
        <source>Play it at the &amp;table</source>
        <translation>La jouer à la &amp;table</translation>
    </message>
    <message>
        <source>Puts the session on the table in place of the game, to be watched roll by roll</source>
        <translation>Met la session sur la table à la place de la partie, pour la suivre lancer par lancer</translation>
    </message>
    <message>
        <source>Re&amp;port ...</source>
        <translation>Rappor&amp;t ...</translation>
    </message>
    <message>
        <source>of</source>
        <translation>sur</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(aucun)</translation>
    </message>
    <message>
        <source>The first sessions are being played ...</source>
        <translation>Les premières sessions se jouent ...</translation>
    </message>
    <message>
        <source>What does a system bring over a whole session?</source>
        <translation>Que rapporte un système sur toute une session ?</translation>
    </message>
    <message>
        <source>Add systems, say how sessions end, and run: each session has dice of its own, the same for every system.</source>
        <translation>Ajoutez des systèmes, dites comment finissent les sessions, et démarrez : chaque session a ses propres dés, les mêmes pour chaque système.</translation>
    </message>
    <message>
        <source>Pa&amp;use</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>C&amp;ontinue</source>
        <translation>C&amp;ontinuer</translation>
    </message>
    <message>
        <source>&amp;Run %1</source>
        <translation>&amp;Démarrer %1</translation>
    </message>
    <message>
        <source>Tessaryn Laboratory</source>
        <translation>Laboratoire de Tessaryn</translation>
    </message>
    <message>
        <source>rank by</source>
        <translation>classer par</translation>
    </message>
    <message>
        <source>What systems are ranked by</source>
        <translation>Critère de classement des systèmes</translation>
    </message>
    <message>
        <source>Pairs of systems</source>
        <translation>Paires de systèmes</translation>
    </message>
    <message>
        <source>Pairs</source>
        <translation>Paires</translation>
    </message>
    <message>
        <source>Sweep</source>
        <translation>Balayage</translation>
    </message>
    <message>
        <source>What was found</source>
        <translation>Ce qui a été trouvé</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Trouvé</translation>
    </message>
    <message>
        <source>Add a system</source>
        <translation>Ajouter un système</translation>
    </message>
    <message>
        <source>As command line</source>
        <translation>En ligne de commande</translation>
    </message>
    <message>
        <source>System of the sweep</source>
        <translation>Système du balayage</translation>
    </message>
    <message>
        <source>Open ...</source>
        <translation>Ouvrir ...</translation>
    </message>
    <message>
        <source>An experiment that was saved, here or by the command line: to look at, or to go on with</source>
        <translation>Une expérience enregistrée, ici ou par la ligne de commande : pour la regarder ou la poursuivre</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>&amp;Experiment ...</source>
        <translation>&amp;Expérience ...</translation>
    </message>
    <message>
        <source>Sessions as &amp;CSV ...</source>
        <translation>Sessions (&amp;CSV) ...</translation>
    </message>
    <message>
        <source>&amp;Sessions Log ...</source>
        <translation>Journal des &amp;sessions ...</translation>
    </message>
    <message>
        <source>Results as &amp;JSON ...</source>
        <translation>Résultats (&amp;JSON) ...</translation>
    </message>
    <message>
        <source>Copy as command &amp;line</source>
        <translation>Copier en &amp;ligne de commande</translation>
    </message>
    <message>
        <source>Keeping every session would take %1 GB: take the mark there away, or play fewer.</source>
        <translation>Garder chaque session prendrait %1 Go : décochez cette case, ou jouez-en moins.</translation>
    </message>
    <message>
        <source>Looking, always on the same dice ...</source>
        <translation>Recherche, toujours avec les mêmes dés ...</translation>
    </message>
    <message>
        <source>%1 sessions for each value that is tried, seed %2.</source>
        <translation>%1 sessions pour chaque valeur essayée, germe %2.</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Systèmes</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Dés</translation>
    </message>
    <message>
        <source>percentage dice, seed %1, the same for all</source>
        <translation>dés à pourcentages, germe %1, les mêmes pour tous</translation>
    </message>
    <message>
        <source>RNG %1, seed %2, the same for all</source>
        <translation>RNG %1, germe %2, les mêmes pour tous</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>%1 sessions in %2 s</source>
        <translation>%1 sessions en %2 s</translation>
    </message>
    <message>
        <source>Experiment</source>
        <translation>Expérience</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>&amp;Find it</source>
        <translation>C&amp;hercher</translation>
    </message>
    <message>
        <source>&amp;Go on to %1</source>
        <translation>Aller jus&amp;qu&apos;à %1</translation>
    </message>
    <message>
        <source>Plays more of the same experiment: four times as many sessions halve the bounds</source>
        <translation>Joue davantage de la même expérience : quatre fois plus de sessions resserrent les bornes de moitié</translation>
    </message>
    <message>
        <source>The experiment is open without its single sessions, so there is no CSV and no Sessions Log of it: %1</source>
        <translation>L&apos;expérience est ouverte sans ses sessions une à une, il n&apos;y en a donc ni CSV ni journal des sessions : %1</translation>
    </message>
    <message>
        <source>Saved; it is kept up to date there from now on.</source>
        <translation>Enregistrée ; elle y est désormais tenue à jour.</translation>
    </message>
    <message>
        <source>Saved: a line for each session and system.</source>
        <translation>Enregistré : une ligne par session et par système.</translation>
    </message>
    <message>
        <source>this file is there already; choose another name</source>
        <translation>ce fichier existe déjà ; choisissez un autre nom</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Enregistré.</translation>
    </message>
    <message>
        <source>Saved: a Sessions Log for each system, numbered in their order.</source>
        <translation>Enregistré : un journal des sessions par système, numérotés dans leur ordre.</translation>
    </message>
    <message>
        <source>There is no command line for this experiment.</source>
        <translation>Il n&apos;y a pas de ligne de commande pour cette expérience.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copié : %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::LaboratorySetup</name>
    <message>
        <source>Laboratory</source>
        <translation>Laboratoire</translation>
    </message>
    <message>
        <source>Systems, all on the same dice</source>
        <translation>Systèmes, tous avec les mêmes dés</translation>
    </message>
    <message>
        <source>Systems</source>
        <translation>Systèmes</translation>
    </message>
    <message>
        <source>Add s&amp;cript ...</source>
        <translation>Ajouter un s&amp;cript ...</translation>
    </message>
    <message>
        <source>Add &amp;player&apos;s script</source>
        <translation>Ajouter le script du &amp;joueur</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>R&amp;etirer</translation>
    </message>
    <message>
        <source>Standing bets</source>
        <translation>Mises permanentes</translation>
    </message>
    <message>
        <source>Standing bets: passline=10, place6=12</source>
        <translation>Mises permanentes : passline=10, place6=12</translation>
    </message>
    <message>
        <source>Add &amp;bets</source>
        <translation>Ajouter des &amp;mises</translation>
    </message>
    <message>
        <source>Stakes that CheckStacks start at</source>
        <translation>Montants de départ des CheckStacks</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>Sessions and their ends</source>
        <translation>Sessions et leurs fins</translation>
    </message>
    <message>
        <source>Sess&amp;ions</source>
        <translation>&amp;Sessions</translation>
    </message>
    <message>
        <source>&amp;Start with $</source>
        <translation>Déb&amp;ut avec $</translation>
    </message>
    <message>
        <source>Most r&amp;olls</source>
        <translation>Lancers a&amp;u plus</translation>
    </message>
    <message>
        <source>any</source>
        <translation>quelconque</translation>
    </message>
    <message>
        <source>Most &amp;hands</source>
        <translation>Mains au &amp;plus</translation>
    </message>
    <message>
        <source>&amp;Win goal $</source>
        <translation>&amp;But de gain $</translation>
    </message>
    <message>
        <source>&amp;Loss limit $</source>
        <translation>&amp;Limite de perte $</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>aussitôt</translation>
    </message>
    <message>
        <source>after the hand</source>
        <translation>après la main</translation>
    </message>
    <message>
        <source>when no contract bet is up any more</source>
        <translation>quand plus aucune mise sous contrat n&apos;est posée</translation>
    </message>
    <message>
        <source>&amp;Ends fall</source>
        <translation>Les &amp;fins tombent</translation>
    </message>
    <message>
        <source>&amp;Known to ±$</source>
        <translation>Connu à ±$ &amp;près</translation>
    </message>
    <message>
        <source>Stops as soon as each mean is known so well, 95% sure</source>
        <translation>S&apos;arrête dès que chaque moyenne est connue à ce point, sûr à 95 %</translation>
    </message>
    <message>
        <source>Table and dice</source>
        <translation>Table et dés</translation>
    </message>
    <message>
        <source>See&amp;d</source>
        <translation>&amp;Germe</translation>
    </message>
    <message>
        <source>The selected player has no script.</source>
        <translation>Le joueur choisi n&apos;a pas de script.</translation>
    </message>
    <message>
        <source>There is nothing to play: add a script, or standing bets.</source>
        <translation>Il n&apos;y a rien à jouer : ajoutez un script ou des mises permanentes.</translation>
    </message>
    <message>
        <source>Start with: must be from 0.01 to %1</source>
        <translation>Début avec : doit être de 0.01 à %1</translation>
    </message>
    <message>
        <source>CheckStacks s&amp;tart at</source>
        <translation>Départ des Chec&amp;kStacks</translation>
    </message>
    <message>
        <source>as the scripts have them; or 1=5,10,25; 2=5..50:5</source>
        <translation>comme dans les scripts ; ou 1=5,10,25; 2=5..50:5</translation>
    </message>
    <message>
        <source>&amp;Vary settings</source>
        <translation>&amp;Varier les réglages</translation>
    </message>
    <message>
        <source>Settings that are varied</source>
        <translation>Réglages qui varient</translation>
    </message>
    <message>
        <source>none; or OddsCalcMethod=1,2,3; FieldPreset=...</source>
        <translation>aucun ; ou OddsCalcMethod=1,2,3; FieldPreset=...</translation>
    </message>
    <message>
        <source>Most hours</source>
        <translation>Heures au plus</translation>
    </message>
    <message>
        <source>Of play, by the roll rate in the table&apos;s settings</source>
        <translation>De jeu, selon la cadence des lancers réglée à la table</translation>
    </message>
    <message>
        <source>Cores</source>
        <translation>Cœurs</translation>
    </message>
    <message>
        <source>How many play at a time; results are the same for any number</source>
        <translation>Combien jouent à la fois ; les résultats sont les mêmes quel que soit le nombre</translation>
    </message>
    <message>
        <source>Other settings for all systems</source>
        <translation>Autres réglages pour tous les systèmes</translation>
    </message>
    <message>
        <source>other settings: SimRollRate=120; ...</source>
        <translation>autres réglages : SimRollRate=120; ...</translation>
    </message>
    <message>
        <source>Keep every session</source>
        <translation>Garder chaque session</translation>
    </message>
    <message>
        <source>For CSV and Sessions Logs; takes 350 bytes of disk for each</source>
        <translation>Pour CSV et journaux des sessions ; prend 350 octets de disque par session</translation>
    </message>
    <message>
        <source>What is asked</source>
        <translation>Question posée</translation>
    </message>
    <message>
        <source>What sessions bring</source>
        <translation>Résultat des sessions</translation>
    </message>
    <message>
        <source>The least bankroll</source>
        <translation>La bankroll minimale</translation>
    </message>
    <message>
        <source>The largest stake</source>
        <translation>La plus grosse mise</translation>
    </message>
    <message>
        <source>Ruined at most</source>
        <translation>Ruinées au plus</translation>
    </message>
    <message>
        <source>CheckStack number</source>
        <translation>Numéro du CheckStack</translation>
    </message>
    <message>
        <source>The share of sessions that may be ruined</source>
        <translation>La part des sessions qui peuvent être ruinées</translation>
    </message>
    <message>
        <source>Whose largest start is looked for</source>
        <translation>Celui dont on cherche le plus haut départ</translation>
    </message>
    <message>
        <source>Stakes</source>
        <translation>Montants</translation>
    </message>
    <message>
        <source>Other settings</source>
        <translation>Autres réglages</translation>
    </message>
    <message>
        <source>Say how long a session may last: rolls, hands or hours.</source>
        <translation>Dites combien de temps une session peut durer : lancers, mains ou heures.</translation>
    </message>
    <message>
        <source>Rules and dice</source>
        <translation>Règles et dés</translation>
    </message>
    <message>
        <source>Rules and dice of this table</source>
        <translation>Règles et dés de cette table</translation>
    </message>
    <message>
        <source>Rules and dice of a new table</source>
        <translation>Règles et dés d&apos;une nouvelle table</translation>
    </message>
    <message>
        <source>Rules and dice of the opened file</source>
        <translation>Règles et dés du fichier ouvert</translation>
    </message>
</context>
<context>
    <name>tessaryn::LooksPage</name>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Bleu-vert</translation>
    </message>
    <message>
        <source>Burgundy</source>
        <translation>Bordeaux</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Gray</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Tan</source>
        <translation>Beige</translation>
    </message>
    <message>
        <source>Cloth</source>
        <translation>Tapis</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>Lettering</source>
        <translation>Lettres</translation>
    </message>
    <message>
        <source>Rail</source>
        <translation>Rail</translation>
    </message>
    <message>
        <source>Round the table</source>
        <translation>Autour de la table</translation>
    </message>
    <message>
        <source>Checks</source>
        <translation>Jetons</translation>
    </message>
    <message>
        <source>First check</source>
        <translation>Premier jeton</translation>
    </message>
    <message>
        <source>Second check</source>
        <translation>Deuxième jeton</translation>
    </message>
    <message>
        <source>Third check</source>
        <translation>Troisième jeton</translation>
    </message>
    <message>
        <source>Fourth check</source>
        <translation>Quatrième jeton</translation>
    </message>
    <message>
        <source>Fifth check</source>
        <translation>Cinquième jeton</translation>
    </message>
    <message>
        <source>&quot;$&quot; check</source>
        <translation>Jeton « $ »</translation>
    </message>
    <message>
        <source>Dice</source>
        <translation>Dés</translation>
    </message>
    <message>
        <source>First die</source>
        <translation>Premier dé</translation>
    </message>
    <message>
        <source>Second die</source>
        <translation>Second dé</translation>
    </message>
    <message>
        <source>Pips</source>
        <translation>Points des dés</translation>
    </message>
    <message>
        <source>All as at first</source>
        <translation>Tout comme à l&apos;origine</translation>
    </message>
    <message>
        <source>Another color</source>
        <translation>Autre couleur</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Texture</source>
        <translation>Texture</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Projecteur</translation>
    </message>
    <message>
        <source>Lettering in a font of my own</source>
        <translation>Lettres dans une police à moi</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Light or dark</source>
        <translation>Clair ou sombre</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>No motion</source>
        <translation>Sans mouvement</translation>
    </message>
    <message>
        <source>Notes in boxes</source>
        <translation>Notes en boîtes</translation>
    </message>
</context>
<context>
    <name>tessaryn::LuckWindow</name>
    <message>
        <source>Luck</source>
        <translation>Chance</translation>
    </message>
    <message>
        <source>Expected: what the bets made cost or bring on average, under the rules and dice in force. Luck is what the dice gave beyond it. Price: what was given away, in percent of what was decided.</source>
        <translation>Attendu : ce que les mises faites coûtent ou rapportent en moyenne, avec les règles et les dés en vigueur. La chance est ce que les dés ont donné au-delà. Prix : ce qui a été cédé, en pour cent de ce qui fut décidé.</translation>
    </message>
    <message>
        <source>Luck of the players</source>
        <translation>Chance des joueurs</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Joueur</translation>
    </message>
    <message>
        <source>Expected</source>
        <translation>Attendu</translation>
    </message>
    <message>
        <source>Came</source>
        <translation>Venu</translation>
    </message>
    <message>
        <source>Std. deviation</source>
        <translation>Écart-type</translation>
    </message>
    <message>
        <source>Luck in std. dev.</source>
        <translation>Chance en écarts-types</translation>
    </message>
    <message>
        <source>Decided</source>
        <translation>Décidé</translation>
    </message>
    <message>
        <source>Price %</source>
        <translation>Prix %</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Lancers</translation>
    </message>
    <message>
        <source>Not counted</source>
        <translation>Non comptés</translation>
    </message>
    <message>
        <source>Rolls with bets up that were counted, and rolls that were not: those of a Turbo-Roll are counted while this window is open.</source>
        <translation>Lancers comptés avec des mises posées, et lancers non comptés : ceux d&apos;un Turbo-Roll comptent tant que cette fenêtre est ouverte.</translation>
    </message>
</context>
<context>
    <name>tessaryn::MainWindow</name>
    <message>
        <source>Tessaryn Turbo-Roll Stopped</source>
        <translation>Turbo-Roll de Tessaryn arrêté</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Lancer %1</translation>
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
        <translation>Lanceur : %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::MessageScreen</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
</context>
<context>
    <name>tessaryn::MovePanel</name>
    <message>
        <source>Move Table</source>
        <translation>Déplacer la table</translation>
    </message>
    <message>
        <source>With Shift or Ctrl: to the window&apos;s border</source>
        <translation>Avec Maj ou Ctrl : jusqu&apos;au bord de la fenêtre</translation>
    </message>
    <message>
        <source>By 30 degrees; Shift 90, Ctrl 45, both 180</source>
        <translation>De 30 degrés ; Maj 90, Ctrl 45, les deux 180</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>Vers le haut</translation>
    </message>
    <message>
        <source>Move left</source>
        <translation>Vers la gauche</translation>
    </message>
    <message>
        <source>Move right</source>
        <translation>Vers la droite</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>Vers le bas</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>The table into the middle of the window</source>
        <translation>La table au milieu de la fenêtre</translation>
    </message>
    <message>
        <source>Turn clockwise</source>
        <translation>Tourner à droite</translation>
    </message>
    <message>
        <source>Turn counterclockwise</source>
        <translation>Tourner à gauche</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Shift: to the window&apos;s height; Ctrl: to its width; both: to the limit</source>
        <translation>Maj : à la hauteur de la fenêtre ; Ctrl : à sa largeur ; les deux : à la limite</translation>
    </message>
</context>
<context>
    <name>tessaryn::NewSessionScreen</name>
    <message>
        <source>New Session</source>
        <translation>Nouvelle session</translation>
    </message>
    <message>
        <source>All bets are taken down and a new session starts.</source>
        <translation>Toutes les mises sont retirées et une nouvelle session commence.</translation>
    </message>
    <message>
        <source> Preserve dice roll file</source>
        <translation> Garder le fichier de lancers</translation>
    </message>
    <message>
        <source> Rewind and playback</source>
        <translation> Rembobiner et rejouer</translation>
    </message>
    <message>
        <source> Continue </source>
        <translation> Continuer </translation>
    </message>
    <message>
        <source> Preserve auto-bet scripts</source>
        <translation> Garder les scripts Auto-Bet</translation>
    </message>
    <message>
        <source> Preserve previous sessions data</source>
        <translation> Garder les données des sessions passées</translation>
    </message>
    <message>
        <source> Preserve checkstacks</source>
        <translation> Garder les CheckStacks</translation>
    </message>
    <message>
        <source> Preserve sessions logs</source>
        <translation> Garder les journaux des sessions</translation>
    </message>
</context>
<context>
    <name>tessaryn::PadGrid</name>
    <message>
        <source>Roll a %1</source>
        <translation>Lancer un %1</translation>
    </message>
    <message>
        <source>Roll %1 and %2</source>
        <translation>Lancer %1 et %2</translation>
    </message>
    <message>
        <source>First die %1</source>
        <translation>Premier dé %1</translation>
    </message>
    <message>
        <source>Second die %1</source>
        <translation>Second dé %1</translation>
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
        <translation>Sept au come-out</translation>
    </message>
    <message>
        <source>Seven after the point</source>
        <translation>Sept après le point</translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation>%1 ou plus</translation>
    </message>
    <message numerus="yes">
        <source>%1 points made</source>
        <translation>
            <numerusform>%1 point réalisé</numerusform>
            <numerusform>%1 points réalisés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 line wins</source>
        <translation>
            <numerusform>%1 gain de ligne</numerusform>
            <numerusform>%1 gains de ligne</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 different points</source>
        <translation>
            <numerusform>%1 point différent</numerusform>
            <numerusform>%1 points différents</numerusform>
        </translation>
    </message>
    <message>
        <source>Bets</source>
        <translation>Mises</translation>
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
        <translation>&amp;Field avec 2x sur Two et Twelve</translation>
    </message>
    <message>
        <source>&amp;Pass Line</source>
        <translation>&amp;Pass Line</translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Pass (bar 12)</source>
        <translation>&amp;Don&apos;t Pass (barre 12)</translation>
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
        <translation>Lay &amp;4 (vig 5 % sur gain seulement)</translation>
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
        <translation>Mise</translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation>Issue</translation>
    </message>
    <message>
        <source>Pays</source>
        <translation>Paie</translation>
    </message>
    <message>
        <source>to/for</source>
        <translation>to/for</translation>
    </message>
    <message>
        <source>Per</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
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
        <translation>pas encore pris</translation>
    </message>
    <message>
        <source>originally %1</source>
        <translation>à l&apos;origine %1</translation>
    </message>
    <message>
        <source>Payoffs of</source>
        <translation>Gains de</translation>
    </message>
    <message>
        <source>Payoffs &amp;of</source>
        <translation>&amp;Gains de</translation>
    </message>
    <message>
        <source>Payoffs</source>
        <translation>Gains</translation>
    </message>
    <message>
        <source>Enter goes from number to number; t and f write the word between them.</source>
        <translation>Entrée va de nombre en nombre ; t et f écrivent le mot entre eux.</translation>
    </message>
    <message>
        <source>&amp;Set Field payoffs to</source>
        <translation>&amp;Régler les gains du Field sur</translation>
    </message>
    <message>
        <source>&amp;Restore default payoffs</source>
        <translation>Rétablir les gains d&apos;&amp;origine</translation>
    </message>
    <message>
        <source>Payoff of %1</source>
        <translation>Gain de %1</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>Bet or outcome</source>
        <translation>Mise ou issue</translation>
    </message>
</context>
<context>
    <name>tessaryn::PercentageDiceWindow</name>
    <message>
        <source>Percentage Dice</source>
        <translation>Dés à pourcentages</translation>
    </message>
    <message>
        <source>Die 1 \ Die 2</source>
        <translation>Dé 1 \ Dé 2</translation>
    </message>
    <message>
        <source>Die 2</source>
        <translation>Dé 2</translation>
    </message>
    <message>
        <source>Die 1</source>
        <translation>Dé 1</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Probability</source>
        <translation>Probabilité</translation>
    </message>
    <message>
        <source>Probability file: %1</source>
        <translation>Fichier de probabilités : %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::PermissionsScreen</name>
    <message>
        <source>Auto-Bet Permissions</source>
        <translation>Permissions Auto-Bet</translation>
    </message>
    <message>
        <source>%1&apos;s script may:</source>
        <translation>Le script de %1 peut :</translation>
    </message>
    <message>
        <source>act for &amp;other players</source>
        <translation>agir pour d&apos;&amp;autres joueurs</translation>
    </message>
    <message>
        <source>start new &amp;sessions</source>
        <translation>commencer de nouvelles &amp;sessions</translation>
    </message>
    <message>
        <source>activate and deactivate &amp;probability files and dice roll files</source>
        <translation>activer et couper les fichiers de &amp;probabilités et de lancers</translation>
    </message>
</context>
<context>
    <name>tessaryn::PlayerChoice</name>
    <message>
        <source>Player</source>
        <translation>Joueur</translation>
    </message>
</context>
<context>
    <name>tessaryn::ProbabilityPage</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Ouvrir ...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Enregistrer &amp;sous ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Lock or unlock the cell	L</source>
        <translation>&amp;Verrouiller ou libérer la case	L</translation>
    </message>
    <message>
        <source>&amp;Shooter&apos;s effectiveness ...</source>
        <translation>&amp;Efficacité du lanceur ...</translation>
    </message>
    <message>
        <source>Ready &amp;dice</source>
        <translation>&amp;Dés tout faits</translation>
    </message>
    <message>
        <source>E&amp;ven Out</source>
        <translation>É&amp;galiser</translation>
    </message>
    <message>
        <source>Keeps this cell&apos;s value; what isn&apos;t locked shares the rest equally</source>
        <translation>Garde la valeur de cette case ; ce qui n&apos;est pas verrouillé se partage le reste</translation>
    </message>
    <message>
        <source>Nothing is free to share the rest.</source>
        <translation>Rien n&apos;est libre pour partager le reste.</translation>
    </message>
    <message>
        <source>&amp;Unlock All</source>
        <translation>&amp;Tout libérer</translation>
    </message>
    <message>
        <source>Percentage dice in use</source>
        <translation>Dés à pourcentages en jeu</translation>
    </message>
    <message>
        <source>Number of rolls</source>
        <translation>Nombre de lancers</translation>
    </message>
    <message>
        <source>%1: %2%, fair dice %3%</source>
        <translation>%1 : %2 %, dés justes %3 %</translation>
    </message>
    <message>
        <source>. Locked: L unlocks it.</source>
        <translation>. Verrouillé : L le libère.</translation>
    </message>
    <message>
        <source>. Type a value, L locks.</source>
        <translation>. Tapez une valeur, L verrouille.</translation>
    </message>
    <message>
        <source>Nothing is free to take up the difference: the cell keeps its value.</source>
        <translation>Rien n&apos;est libre pour absorber la différence : la case garde sa valeur.</translation>
    </message>
</context>
<context>
    <name>tessaryn::ProbabilityTable</name>
    <message>
        <source>Probabilities of the dice</source>
        <translation>Probabilités des dés</translation>
    </message>
</context>
<context>
    <name>tessaryn::RollFilesWindow</name>
    <message>
        <source>&amp;New / Open ...</source>
        <translation>&amp;Nouveau / Ouvrir ...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Copy To &amp;Roll File ...</source>
        <translation>Copier vers un fichier de &amp;lancers ...</translation>
    </message>
    <message>
        <source>Copy To &amp;Text File ...</source>
        <translation>Copier vers un fichier &amp;texte ...</translation>
    </message>
    <message>
        <source>Paste &amp;From Roll File ...</source>
        <translation>Coller &amp;depuis un fichier de lancers ...</translation>
    </message>
    <message>
        <source>Paste From Te&amp;xt File ...</source>
        <translation>Coller depuis un fichier te&amp;xte ...</translation>
    </message>
    <message>
        <source>&amp;Print ...</source>
        <translation>&amp;Imprimer ...</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Couper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>Co&amp;pier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout choisir</translation>
    </message>
    <message>
        <source>Dice Roll Files</source>
        <translation>Fichiers de lancers</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Highlight</source>
        <translation>&amp;Surligner</translation>
    </message>
    <message>
        <source>Font &amp;size</source>
        <translation>&amp;Taille de police</translation>
    </message>
    <message>
        <source>&amp;As the screen</source>
        <translation>&amp;Comme l&apos;écran</translation>
    </message>
    <message>
        <source>Entering rolls, and their distribution</source>
        <translation>Saisie des lancers, et leur répartition</translation>
    </message>
    <message>
        <source>Enter %1 and %2</source>
        <translation>Saisir %1 et %2</translation>
    </message>
    <message>
        <source>Enters %1 and %2. In the list: type %1%2</source>
        <translation>Saisit %1 et %2. Dans la liste : taper %1%2</translation>
    </message>
    <message>
        <source> Type over</source>
        <translation> Remplacer</translation>
    </message>
    <message>
        <source> Insert</source>
        <translation> Insérer</translation>
    </message>
    <message>
        <source>Ran&amp;dom</source>
        <translation>Au &amp;hasard</translation>
    </message>
    <message>
        <source>&amp;Output format:</source>
        <translation>F&amp;ormat de sortie :</translation>
    </message>
    <message>
        <source>Roll#, Die1, Die2 and Total stand for the values; all else is copied as it is</source>
        <translation>Roll#, Die1, Die2 et Total représentent les valeurs ; tout le reste est copié tel quel</translation>
    </message>
    <message>
        <source>■ Off</source>
        <translation>■ Arrêt</translation>
    </message>
    <message>
        <source>● Record</source>
        <translation>● Enregistrer</translation>
    </message>
    <message>
        <source>▶ Playback</source>
        <translation>▶ Rejouer</translation>
    </message>
    <message>
        <source>Recorder off</source>
        <translation>Enregistreur arrêté</translation>
    </message>
    <message>
        <source>Record the game&apos;s rolls</source>
        <translation>Enregistrer les lancers de la partie</translation>
    </message>
    <message>
        <source>Play the file&apos;s rolls</source>
        <translation>Jouer les lancers du fichier</translation>
    </message>
    <message>
        <source>Next roll &amp;is roll #</source>
        <translation>Le &amp;prochain lancer est le n°</translation>
    </message>
    <message>
        <source>No file open</source>
        <translation>Aucun fichier ouvert</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls</source>
        <translation>
            <numerusform>%1 lancer</numerusform>
            <numerusform>%1 lancers</numerusform>
        </translation>
    </message>
    <message>
        <source>Roll 12, 3 and 4: %1</source>
        <translation>Lancer 12, 3 et 4 : %1</translation>
    </message>
    <message>
        <source>No die and no total in it</source>
        <translation>Ni dé ni total dedans</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls counted ...</source>
        <translation>
            <numerusform>%1 lancer compté ...</numerusform>
            <numerusform>%1 lancers comptés ...</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>All %1 rolls</source>
        <translation>
            <numerusform>Un seul lancer : %1</numerusform>
            <numerusform>Les %1 lancers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The %1 selected rolls</source>
        <translation>
            <numerusform>%1 lancer choisi</numerusform>
            <numerusform>Les %1 lancers choisis</numerusform>
        </translation>
    </message>
    <message>
        <source>Print Dice Rolls</source>
        <translation>Imprimer les lancers</translation>
    </message>
    <message>
        <source>Roll file:  %1</source>
        <translation>Fichier de lancers :  %1</translation>
    </message>
    <message>
        <source>Rolls: %1</source>
        <translation>Lancers : %1</translation>
    </message>
    <message>
        <source>Number of rolls to be printed: %1</source>
        <translation>Nombre de lancers à imprimer : %1</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, %2 choisis</translation>
    </message>
    <message>
        <source>%1 · % · hatched: fair</source>
        <translation>%1 · % · hachuré : juste</translation>
    </message>
</context>
<context>
    <name>tessaryn::RollList</name>
    <message>
        <source>&amp;Nothing</source>
        <translation>&amp;Rien</translation>
    </message>
    <message>
        <source>&amp;Sevens</source>
        <translation>&amp;Sept</translation>
    </message>
    <message>
        <source>&amp;Craps: 2, 3 and 12</source>
        <translation>&amp;Craps : 2, 3 et 12</translation>
    </message>
    <message>
        <source>&amp;Point numbers</source>
        <translation>Numéros de &amp;point</translation>
    </message>
    <message>
        <source>Si&amp;x and eight</source>
        <translation>Si&amp;x et huit</translation>
    </message>
    <message>
        <source>P&amp;airs</source>
        <translation>&amp;Doubles</translation>
    </message>
    <message>
        <source>First roll shown</source>
        <translation>Premier lancer montré</translation>
    </message>
    <message>
        <source>No dice roll file is open.
File, New or Open begins.</source>
        <translation>Aucun fichier de lancers n&apos;est ouvert.
Fichier, Nouveau ou Ouvrir pour commencer.</translation>
    </message>
    <message>
        <source>end of file</source>
        <translation>fin du fichier</translation>
    </message>
    <message>
        <source>No dice roll file is open</source>
        <translation>Aucun fichier de lancers n&apos;est ouvert</translation>
    </message>
    <message>
        <source>Dice rolls, next roll %1 of %2</source>
        <translation>Lancers, prochain lancer %1 sur %2</translation>
    </message>
    <message>
        <source>%1, rolls %2 to %3 selected</source>
        <translation>%1, lancers %2 à %3 choisis</translation>
    </message>
</context>
<context>
    <name>tessaryn::RollPad</name>
    <message>
        <source>&amp;Random Roll</source>
        <translation>Lancer au &amp;hasard</translation>
    </message>
    <message>
        <source>Roll Your Own Numbers</source>
        <translation>Lancer ses propres nombres</translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation>Vitesse de la série</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Lancer %1</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Cacher</translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Roll &amp;counter</source>
        <translation>&amp;Compteur de lancers</translation>
    </message>
    <message>
        <source>&amp;Turbo-Roll button</source>
        <translation>Bouton &amp;Turbo-Roll</translation>
    </message>
    <message>
        <source>&amp;Random button</source>
        <translation>Bouton de &amp;hasard</translation>
    </message>
    <message>
        <source>Set Auto-Roll t&amp;ime delay ...</source>
        <translation>Dé&amp;lai d&apos;Auto-Roll ...</translation>
    </message>
    <message>
        <source>Set Auto-&amp;Stop ...</source>
        <translation>Arrêt &amp;automatique ...</translation>
    </message>
</context>
<context>
    <name>tessaryn::RunControls</name>
    <message>
        <source>R&amp;oll</source>
        <translation>&amp;Lancer</translation>
    </message>
    <message>
        <source>Pass dice</source>
        <translation>Passer</translation>
    </message>
    <message>
        <source>Roll the dice (F2, or right click on the table)</source>
        <translation>Lancer les dés (F2, ou clic droit sur la table)</translation>
    </message>
    <message>
        <source>Pass the dice (P)</source>
        <translation>Passer les dés (P)</translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation>Vitesse de la série</translation>
    </message>
    <message>
        <source>How fast a run goes: full speed on the left, Auto-Roll on the right</source>
        <translation>La vitesse d&apos;une série : pleine vitesse à gauche, Auto-Roll à droite</translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsHistogram</name>
    <message>
        <source># S e s s i o n s</source>
        <translation>N b   d e   s e s s i o n s</translation>
    </message>
    <message>
        <source>mean</source>
        <translation>moyenne</translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions</source>
        <translation>
            <numerusform>%1 session</numerusform>
            <numerusform>%1 sessions</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 to %2: %3, %4% at or below</source>
        <translation>%1 à %2 : %3, %4 % jusque-là</translation>
    </message>
    <message>
        <source>No sessions</source>
        <translation>Aucune session</translation>
    </message>
    <message>
        <source>Histogram of the sessions</source>
        <translation>Histogramme des sessions</translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsLogScreen</name>
    <message>
        <source>Lo&amp;g</source>
        <translation>&amp;Journal</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>N&amp;ew (all players)</source>
        <translation>N&amp;ouveau (tous les joueurs)</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>O&amp;uvrir ...</translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation>Enregistrer &amp;sous ...</translation>
    </message>
    <message>
        <source>&amp;Merge ...</source>
        <translation>&amp;Fusionner ...</translation>
    </message>
    <message>
        <source>&amp;Delete ...</source>
        <translation>Su&amp;pprimer ...</translation>
    </message>
    <message>
        <source>Delete a&amp;ll ...</source>
        <translation>&amp;Tout supprimer ...</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>Che&amp;rcher</translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Chercher ...</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation>O&amp;ptions</translation>
    </message>
    <message>
        <source>Set &amp;break-point ...</source>
        <translation>Poser une li&amp;mite ...</translation>
    </message>
    <message>
        <source>Graph bar &amp;width</source>
        <translation>&amp;Largeur des barres</translation>
    </message>
    <message>
        <source>&amp;Fine</source>
        <translation>&amp;Fine</translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation>&amp;Moyenne</translation>
    </message>
    <message>
        <source>&amp;Wide</source>
        <translation>&amp;Large</translation>
    </message>
    <message>
        <source>&amp;Extra wide</source>
        <translation>&amp;Très large</translation>
    </message>
    <message>
        <source>&amp;Normal curve</source>
        <translation>Courbe &amp;normale</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Joueur</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source> Histogram</source>
        <translation> Histogramme</translation>
    </message>
    <message>
        <source> Data</source>
        <translation> Données</translation>
    </message>
    <message>
        <source>How much of the log has been read</source>
        <translation>Part du journal déjà lue</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Net $</source>
        <translation>Net $</translation>
    </message>
    <message>
        <source>Handle $</source>
        <translation>Volume $</translation>
    </message>
    <message>
        <source>Advantage %</source>
        <translation>Avantage %</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Gagnées</translation>
    </message>
    <message>
        <source>Broke-even</source>
        <translation>À zéro</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdues</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>These sessions take part</source>
        <translation>Ces sessions comptent</translation>
    </message>
    <message>
        <source>Leave out outliers</source>
        <translation>Écarter les extrêmes</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>To</source>
        <translation>À</translation>
    </message>
    <message>
        <source>value</source>
        <translation>valeur</translation>
    </message>
    <message>
        <source>standard deviations</source>
        <translation>écarts-types</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Deviations</source>
        <translation>Écarts</translation>
    </message>
    <message>
        <source>Lowest value that takes part</source>
        <translation>Plus petite valeur qui compte</translation>
    </message>
    <message>
        <source>Highest value that takes part</source>
        <translation>Plus grande valeur qui compte</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>From, to</source>
        <translation>De, à</translation>
    </message>
    <message>
        <source>Searching ...</source>
        <translation>Recherche ...</translation>
    </message>
    <message>
        <source>The figures are not of this choice: the calculation was cancelled.</source>
        <translation>Les chiffres ne sont pas ceux de ce choix : le calcul a été annulé.</translation>
    </message>
    <message>
        <source>The statistics could not be calculated.</source>
        <translation>Les statistiques n&apos;ont pas pu être calculées.</translation>
    </message>
    <message>
        <source>&amp;Calculate</source>
        <translation>Ca&amp;lculer</translation>
    </message>
    <message>
        <source>no player</source>
        <translation>aucun joueur</translation>
    </message>
    <message>
        <source>Sessions Log (%1)</source>
        <translation>Journal des sessions (%1)</translation>
    </message>
    <message>
        <source>Near the middle one of the values, which is not known</source>
        <translation>Près du milieu, une des valeurs, on ne sait laquelle</translation>
    </message>
    <message>
        <source>Break-point: %1</source>
        <translation>Limite : %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 sessions</source>
        <translation>
            <numerusform>%1 session</numerusform>
            <numerusform>%1 sessions</numerusform>
        </translation>
    </message>
    <message>
        <source>Statistic</source>
        <translation>Statistique</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Tessaryn Sessions Log</source>
        <translation>Journal des sessions de Tessaryn</translation>
    </message>
    <message>
        <source>Player:  %1</source>
        <translation>Joueur :  %1</translation>
    </message>
    <message>
        <source>Log:  %1</source>
        <translation>Journal :  %1</translation>
    </message>
    <message>
        <source>Values from %1 to %2</source>
        <translation>Valeurs de %1 à %2</translation>
    </message>
    <message>
        <source>Print Sessions Log Raw Data</source>
        <translation>Imprimer les données brutes du journal</translation>
    </message>
    <message>
        <source>Print Sessions Log</source>
        <translation>Imprimer le journal des sessions</translation>
    </message>
    <message>
        <source>Number of sessions: %1</source>
        <translation>Nombre de sessions : %1</translation>
    </message>
    <message>
        <source>Number of pages: %1</source>
        <translation>Nombre de pages : %1</translation>
    </message>
    <message>
        <source>Saving the log ...</source>
        <translation>Enregistrement du journal ...</translation>
    </message>
    <message>
        <source>Merging the logs ...</source>
        <translation>Fusion des journaux ...</translation>
    </message>
    <message>
        <source>Deleting sessions ...</source>
        <translation>Suppression de sessions ...</translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsRows</name>
    <message>
        <source>Sessions</source>
        <translation>Sessions</translation>
    </message>
    <message>
        <source>Session at the top</source>
        <translation>Session du haut</translation>
    </message>
    <message>
        <source>Session #</source>
        <translation>Session n°</translation>
    </message>
    <message>
        <source># Rolls</source>
        <translation>Nb de lancers</translation>
    </message>
    <message>
        <source>Include</source>
        <translation>Inclure</translation>
    </message>
    <message>
        <source>Standard Deviations</source>
        <translation>Écarts-types</translation>
    </message>
    <message>
        <source>No sessions</source>
        <translation>Aucune session</translation>
    </message>
</context>
<context>
    <name>tessaryn::SettleBetScreen</name>
    <message>
        <source>&amp;Take Bet and Winnings</source>
        <translation>&amp;Prendre mise et gains</translation>
    </message>
    <message>
        <source>&amp;Same Bet - Take Winnings</source>
        <translation>&amp;Même mise - prendre les gains</translation>
    </message>
    <message>
        <source>Press 1 &amp;Unit - Add $%1 to Bet</source>
        <translation>Augmenter d&apos;une &amp;unité - $%1 de plus</translation>
    </message>
    <message>
        <source>Press - Add Winnings to &amp;Double Bet</source>
        <translation>Augmenter - &amp;doubler avec les gains</translation>
    </message>
    <message>
        <source>Parlay - Add &amp;All Winnings to Bet</source>
        <translation>Parlay - &amp;tous les gains sur la mise</translation>
    </message>
    <message>
        <source>Sa&amp;me Bet:</source>
        <translation>Même m&amp;ise :</translation>
    </message>
    <message>
        <source>&amp;Bet:</source>
        <translation>Mis&amp;e :</translation>
    </message>
    <message>
        <source>&amp;No Bet/Take Remainder (if any)</source>
        <translation>Pas de mise/prendre le &amp;reste (s&apos;il y en a)</translation>
    </message>
    <message>
        <source>&amp;Same Bet</source>
        <translation>&amp;Même mise</translation>
    </message>
    <message>
        <source>Bet &amp;Remainder (if any)</source>
        <translation>Miser le re&amp;ste (s&apos;il y en a)</translation>
    </message>
    <message>
        <source>Same Bet Plus 1 &amp;Unit - Add $%1 to Bet</source>
        <translation>Même mise plus 1 &amp;unité - $%1 de plus</translation>
    </message>
    <message>
        <source>&amp;Double Bet</source>
        <translation>&amp;Doubler la mise</translation>
    </message>
    <message>
        <source>Half of the bet wins:</source>
        <translation>La moitié de la mise gagne :</translation>
    </message>
    <message>
        <source>Half of the bet loses:</source>
        <translation>La moitié de la mise perd :</translation>
    </message>
    <message>
        <source>A quarter of the bet wins:</source>
        <translation>Un quart de la mise gagne :</translation>
    </message>
    <message>
        <source>Three quarters of the bet lose:</source>
        <translation>Trois quarts de la mise perdent :</translation>
    </message>
    <message>
        <source>A fifth of the bet wins:</source>
        <translation>Un cinquième de la mise gagne :</translation>
    </message>
    <message>
        <source>Four fifths of the bet lose:</source>
        <translation>Quatre cinquièmes de la mise perdent :</translation>
    </message>
    <message>
        <source>Points made:</source>
        <translation>Points réalisés :</translation>
    </message>
    <message>
        <source>Line wins:</source>
        <translation>Gains de ligne :</translation>
    </message>
    <message>
        <source>Different points made:</source>
        <translation>Points différents réalisés :</translation>
    </message>
    <message>
        <source>Payoff at %1 for %2:</source>
        <translation>Gain à %1 for %2 :</translation>
    </message>
    <message>
        <source>Payoff at %1 to %2:</source>
        <translation>Gain à %1 to %2 :</translation>
    </message>
    <message>
        <source>Bet:</source>
        <translation>Mise :</translation>
    </message>
    <message>
        <source>Bet lost:</source>
        <translation>Mise perdue :</translation>
    </message>
    <message>
        <source>%1% vig:</source>
        <translation>Vig %1 % :</translation>
    </message>
    <message>
        <source>Net payoff:</source>
        <translation>Gain net :</translation>
    </message>
    <message>
        <source>Net loss:</source>
        <translation>Perte nette :</translation>
    </message>
    <message>
        <source>Net payoff (rounded):</source>
        <translation>Gain net (arrondi) :</translation>
    </message>
    <message>
        <source>Net loss (rounded):</source>
        <translation>Perte nette (arrondie) :</translation>
    </message>
    <message>
        <source>ODDS OFF</source>
        <translation>ODDS OFF</translation>
    </message>
    <message>
        <source>WINNER</source>
        <translation>GAGNÉ</translation>
    </message>
    <message>
        <source>LOSER</source>
        <translation>PERDU</translation>
    </message>
    <message>
        <source>%1, bet %2</source>
        <translation>%1, mise %2</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>The odds weren&apos;t working: nothing was won or lost.</source>
        <translation>Les Odds ne travaillaient pas : rien n&apos;a été gagné ni perdu.</translation>
    </message>
    <message>
        <source>This bet is over. It comes down with every choice.</source>
        <translation>Cette mise est finie. Elle est retirée quel que soit le choix.</translation>
    </message>
    <message>
        <source>The same &amp;for the rest of this roll</source>
        <translation>De même pour le &amp;reste de ce lancer</translation>
    </message>
    <message>
        <source>All other winners of this roll are treated alike</source>
        <translation>Toutes les autres gagnantes de ce lancer sont traitées de même</translation>
    </message>
    <message>
        <source>All other losers of this roll are treated alike</source>
        <translation>Toutes les autres perdantes de ce lancer sont traitées de même</translation>
    </message>
    <message>
        <source>Don&apos;t as&amp;k again (Auto-Play, F3)</source>
        <translation>Ne plus &amp;demander (Auto-Play, F3)</translation>
    </message>
    <message>
        <source>Becomes the player&apos;s choice on the Auto-Play screen</source>
        <translation>Devient le choix du joueur à l&apos;écran Auto-Play</translation>
    </message>
</context>
<context>
    <name>tessaryn::SettleSheet</name>
    <message>
        <source>the point is set</source>
        <translation>le point est posé</translation>
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
        <translation>point réalisé</translation>
    </message>
    <message>
        <source>the point stays %1</source>
        <translation>le point reste %1</translation>
    </message>
    <message>
        <source>Settle the roll</source>
        <translation>Régler le lancer</translation>
    </message>
    <message>
        <source>Roll %1: %2, %3</source>
        <translation>Lancer %1 : %2, %3</translation>
    </message>
    <message>
        <source>Decided bets</source>
        <translation>Mises décidées</translation>
    </message>
    <message>
        <source>%1 lost %2</source>
        <translation>%1 perd %2</translation>
    </message>
    <message>
        <source>%1 won %2</source>
        <translation>%1 gagne %2</translation>
    </message>
    <message>
        <source>WINNER</source>
        <translation>GAGNÉ</translation>
    </message>
    <message>
        <source>This bet is over. It comes down with every choice.</source>
        <translation>Cette mise est finie. Elle est retirée quel que soit le choix.</translation>
    </message>
    <message>
        <source>The odds weren&apos;t working: nothing was won or lost.</source>
        <translation>Les Odds ne travaillaient pas : rien n&apos;a été gagné ni perdu.</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>Don&apos;t as&amp;k again: keep these choices (Auto-Play, F3)</source>
        <translation>Ne plus &amp;demander : garder ces choix (Auto-Play, F3)</translation>
    </message>
    <message>
        <source>Each player&apos;s first winner and first loser here become the choices of Auto-Play</source>
        <translation>La première gagnante et la première perdante de chaque joueur deviennent ici les choix d&apos;Auto-Play</translation>
    </message>
    <message>
        <source>One &amp;at a time</source>
        <translation>&amp;Une par une</translation>
    </message>
    <message>
        <source>All &amp;same</source>
        <translation>&amp;Toutes de même</translation>
    </message>
    <message>
        <source>The first winner&apos;s choice for all winners, the first loser&apos;s for all losers</source>
        <translation>Le choix de la première gagnante pour toutes les gagnantes, celui de la première perdante pour toutes les perdantes</translation>
    </message>
    <message>
        <source>&amp;Done (Enter)</source>
        <translation>&amp;Fini (Entrée)</translation>
    </message>
    <message>
        <source>Bets decided: %1</source>
        <translation>Mises décidées : %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::SortChoice</name>
    <message>
        <source>Sort by</source>
        <translation>Trier par</translation>
    </message>
    <message>
        <source>Table order</source>
        <translation>Ordre de la table</translation>
    </message>
</context>
<context>
    <name>tessaryn::TableWidget</name>
    <message>
        <source>Craps table</source>
        <translation>Table de craps</translation>
    </message>
    <message>
        <source>Bet amount</source>
        <translation>Montant de la mise</translation>
    </message>
</context>
<context>
    <name>tessaryn::ToolDock</name>
    <message>
        <source>Print, copy, place</source>
        <translation>Imprimer, copier, placer</translation>
    </message>
    <message>
        <source>A window of its own</source>
        <translation>Fenêtre à part</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>tessaryn::TurboPanel</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>Turbo-Roll Active</source>
        <translation>Turbo-Roll en cours</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Lancers</translation>
    </message>
    <message>
        <source>Rolls a second</source>
        <translation>Lancers par seconde</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
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
        <translation>Attendre après cha&amp;que instruction</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivante</translation>
    </message>
    <message>
        <source>&amp;Go on</source>
        <translation>&amp;Continuer</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>Statements carried out</source>
        <translation>Instructions exécutées</translation>
    </message>
    <message>
        <source>Auto-Bet Steps</source>
        <translation>Pas à pas Auto-Bet</translation>
    </message>
    <message>
        <source>Auto-Bet Steps (%1)</source>
        <translation>Pas à pas Auto-Bet (%1)</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>Values: %1</source>
        <translation>Valeurs : %1</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopTrial</name>
    <message>
        <source>Try it</source>
        <translation>Essayer</translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation>Lancers</translation>
    </message>
    <message>
        <source>rolls</source>
        <translation>lancers</translation>
    </message>
    <message>
        <source>Tr&amp;y it</source>
        <translation>Essa&amp;yer</translation>
    </message>
    <message>
        <source>Same &amp;dice again</source>
        <translation>Les mêmes &amp;dés encore</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avancement</translation>
    </message>
    <message>
        <source>The script runs on a copy of the table; the game stays as it is.</source>
        <translation>Le script tourne sur une copie de la table ; la partie reste telle quelle.</translation>
    </message>
    <message>
        <source>Bets of the trial</source>
        <translation>Mises de l&apos;essai</translation>
    </message>
    <message>
        <source>Bet</source>
        <translation>Mise</translation>
    </message>
    <message>
        <source>Won</source>
        <translation>Gagné</translation>
    </message>
    <message>
        <source>Lost</source>
        <translation>Perdu</translation>
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
        <translation>Arrê&amp;ter</translation>
    </message>
    <message>
        <source>%1 of %2 bet</source>
        <translation>%1 sur %2 misés</translation>
    </message>
    <message numerus="yes">
        <source>%1 rolls in %2 s</source>
        <translation>
            <numerusform>%1 lancer en %2 s</numerusform>
            <numerusform>%1 lancers en %2 s</numerusform>
        </translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>arrêté</translation>
    </message>
    <message numerus="yes">
        <source>%1 (line %2, %3 times)</source>
        <translation>
            <numerusform>%1 (ligne %2, %3 fois)</numerusform>
            <numerusform>%1 (ligne %2, %3 fois)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Run before: %1, %2 rolls</source>
        <translation>
            <numerusform>Série précédente : %1, %2 lancer</numerusform>
            <numerusform>Série précédente : %1, %2 lancers</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopWatch</name>
    <message>
        <source>Watch</source>
        <translation>Observer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Add a name</source>
        <translation>Ajouter un nom</translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopWindow</name>
    <message>
        <source>Logic</source>
        <translation>Logique</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Fonctions</translation>
    </message>
    <message>
        <source>Modifiers</source>
        <translation>Modificateurs</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation>&amp;Ouvrir ...</translation>
    </message>
    <message>
        <source>Sa&amp;mples</source>
        <translation>E&amp;xemples</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;as ...</source>
        <translation>Enregistrer &amp;sous ...</translation>
    </message>
    <message>
        <source>&amp;Print in colours ...</source>
        <translation>&amp;Imprimer en couleurs ...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation>&amp;Chercher ...</translation>
    </message>
    <message>
        <source>&amp;Replace ...</source>
        <translation>&amp;Remplacer ...</translation>
    </message>
    <message>
        <source>&amp;Copy to</source>
        <translation>Co&amp;pier vers</translation>
    </message>
    <message>
        <source>&amp;Paste from</source>
        <translation>Coller &amp;depuis</translation>
    </message>
    <message>
        <source>&amp;Words that go on</source>
        <translation>&amp;Mots qui suivent</translation>
    </message>
    <message>
        <source>P&amp;ut in the proposal</source>
        <translation>&amp;Insérer la proposition</translation>
    </message>
    <message>
        <source>&amp;Meaning of the word</source>
        <translation>&amp;Sens du mot</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>E&amp;xécution</translation>
    </message>
    <message>
        <source>&amp;Check script</source>
        <translation>&amp;Vérifier le script</translation>
    </message>
    <message>
        <source>&amp;Activate all scripts</source>
        <translation>&amp;Activer tous les scripts</translation>
    </message>
    <message>
        <source>Run &amp;one cycle</source>
        <translation>Exécuter un &amp;cycle</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <translation>&amp;Pas</translation>
    </message>
    <message>
        <source>Run to the c&amp;ursor</source>
        <translation>Aller jusqu&apos;au c&amp;urseur</translation>
    </message>
    <message>
        <source>&amp;Break-point</source>
        <translation>Point d&apos;a&amp;rrêt</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>Arrê&amp;ter</translation>
    </message>
    <message>
        <source>Tr&amp;y it</source>
        <translation>Essa&amp;yer</translation>
    </message>
    <message>
        <source>&amp;Permissions ...</source>
        <translation>Per&amp;missions ...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Show &amp;steps</source>
        <translation>Montrer le &amp;pas à pas</translation>
    </message>
    <message>
        <source>&amp;Line numbers</source>
        <translation>&amp;Numéros de ligne</translation>
    </message>
    <message>
        <source>Lists of &amp;words</source>
        <translation>&amp;Listes de mots</translation>
    </message>
    <message>
        <source>&amp;Auto-indent</source>
        <translation>&amp;Retrait automatique</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Maintenant : %1</translation>
    </message>
    <message>
        <source>P&amp;layer:</source>
        <translation>&amp;Joueur :</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Joueur</translation>
    </message>
    <message>
        <source>A&amp;ctive</source>
        <translation>A&amp;ctif</translation>
    </message>
    <message>
        <source>Check Script</source>
        <translation>Vérifier le script</translation>
    </message>
    <message>
        <source>Run one cycle</source>
        <translation>Exécuter un cycle</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Below the script</source>
        <translation>Sous le script</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problèmes</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Mots</translation>
    </message>
    <message>
        <source>Logged bets</source>
        <translation>Mises notées</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Words of the language</source>
        <translation>Mots de la langue</translation>
    </message>
    <message>
        <source>Word</source>
        <translation>Mot</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Log &amp;my bets</source>
        <translation>Noter &amp;mes mises</translation>
    </message>
    <message>
        <source>When they are made</source>
        <translation>Quand elles sont faites</translation>
    </message>
    <message>
        <source>As they stand</source>
        <translation>Comme elles sont</translation>
    </message>
    <message>
        <source>On the come-out</source>
        <translation>Au come-out</translation>
    </message>
    <message>
        <source>After a point</source>
        <translation>Après un point</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Insérer</translation>
    </message>
    <message>
        <source>Save ...</source>
        <translation>Enregistrer ...</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation>Ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 erreur</translation>
    </message>
    <message>
        <source>Auto-Bet</source>
        <translation>Auto-Bet</translation>
    </message>
    <message>
        <source>Nobody is at the table</source>
        <translation>Personne à la table</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>sans titre</translation>
    </message>
    <message>
        <source>Auto-Bet - %1 - %2</source>
        <translation>Auto-Bet - %1 - %2</translation>
    </message>
    <message>
        <source>%1, not saved</source>
        <translation>%1, non enregistré</translation>
    </message>
    <message>
        <source>may act for other players</source>
        <translation>peut agir pour d&apos;autres joueurs</translation>
    </message>
    <message>
        <source>may start sessions</source>
        <translation>peut commencer des sessions</translation>
    </message>
    <message>
        <source>may use files of dice</source>
        <translation>peut utiliser des fichiers de dés</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Statement</source>
        <translation>Instruction</translation>
    </message>
    <message>
        <source>&amp;File ...</source>
        <translation>&amp;Fichier ...</translation>
    </message>
    <message>
        <source>Ctrl+. puts in &quot;%1&quot;</source>
        <translation>Ctrl+. insère « %1 »</translation>
    </message>
    <message>
        <source>Problems (1)</source>
        <translation>Problèmes (1)</translation>
    </message>
    <message>
        <source>&amp;Recent</source>
        <translation>&amp;Récents</translation>
    </message>
    <message>
        <source>&amp;Counts of the lines</source>
        <translation>Co&amp;mptes des lignes</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Aucun encore</translation>
    </message>
</context>
</TS>
