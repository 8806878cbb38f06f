<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>AboutScreen</name>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A craps table to play at, and to test betting systems on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Tessaryn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programs:  %1
Data:  %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3: see LICENSE.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BankrollGraph</name>
    <message>
        <source>rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High:  %1  Current:  %2  Low:  %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 roll avg</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All rolls avg</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Commands</name>
    <message>
        <source>&amp;Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Watch a system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Study results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Float all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close all instruments</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Key in bet amounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Buy a Place bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Call a bet &amp;ON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Call a bet O&amp;FF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Call all bets O&amp;N</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Call all bets OFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take full odds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lay full odds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove a bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Move a bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove &amp;all bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Game</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;uto-Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stat&amp;istics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Roll the dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pass the dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll your &amp;own numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start &amp;Turbo-Roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Auto-Roll time &amp;delay ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Auto-&amp;Stop ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open pro&amp;bability file ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per&amp;centage dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pla&amp;y a dice roll file ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;ecord a dice roll file ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;lose the dice roll file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dice roll &amp;files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentage dice ed&amp;itor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop t&amp;he dice roll file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recent games</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Files in use ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>So&amp;und</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keys and mouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Tessaryn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;emove ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;TM ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-&amp;Play ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open script ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Initialize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop auto-betting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Assign a &amp;hot-key ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-Bet &amp;workshop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hot-&amp;keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet &amp;results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet &amp;trends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;oll totals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll &amp;frequencies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bankroll graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;CheckStacks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sessions &amp;Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Events Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>L&amp;aboratory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet &amp;amounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Flash the bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Proposition bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Move, zoom and rotate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rotate by 30 degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Whole table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Left end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ri&amp;ght end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;estore view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arra&amp;nge</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lang&amp;uage</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Core</name>
    <message>
        <source>Auto select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X Flat - No Push</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X Flat w/ Minor Push</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X Flat w/ Color Push</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>X Flat - Single Odds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flat - Single Odds X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rounded normally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rounded down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rounded up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Charge winning Buy bets only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Charge all Buy bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Charge winning Lay bets only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Charge all Lay bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No bets required to shoot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line bet required to shoot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any bet required to shoot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Actions not allowed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Betting limits reached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Charges and/or change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Auto-bet messages normal play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Auto-bet messages turbo-roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t show any info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show amounts only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show names only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show names and amounts only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show all info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Theoretical house vig</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Total comp action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Average comp action and time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Seed normally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> User seed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Auto w/ minor correction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Auto w/ color correction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Thrown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Without motion</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Thrown quickly</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Carry the bankroll forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Begin with this amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Ask for the amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 by the change, 1 up, 2 down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>minimum of bets 1 to 51</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>minimum of bets 52 to 93</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>table maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>most a proposition may pay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ceiling of an odds bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ceiling of the Fire bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>odds multiple on 4 and 10</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>odds multiple on 5 and 9</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>odds multiple on 6 and 8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 auto select, 1 to 5 the method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>12 or 2, barred on the don&apos;t side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 none, 1 line bet, 2 any bet needed to shoot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Big 6 and Big 8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Midway bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>special propositions, bets 84 to 89</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fire bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>contract bets go back at a new session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what the Field pays; Own once a row of it is another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a fraction, or with % a percentage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 normally, 1 down, 2 up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>charge all Buy bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>charge all Lay bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rolls per hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 fastest to 11; 12 Auto-Roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>seconds between Auto-Rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rolls, 0 never</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>offered to a new player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the ATM works</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>amount of an ATM action that names none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bits 1 refusals, 2 bankroll, 4 adjustments, 8 and 16 scripts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>amounts below a dollar are written in cents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>checks of a bet are changed for the fewest; else they stay as they were bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the pointer goes to the default button of a box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>printing in colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>how much the pointer tells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>points: 9 small, 11 the desktop&apos;s own size, 13 large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>how the dice move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sound set, 0 none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sounds of scripts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>silence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>advantage: zeros are decisions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 theoretical vig, 1 action, 2 action and time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>comps ignore percentage dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>generator number less 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the user is asked for seeds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a new session seeds again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the Events Log&apos;s master switch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events Log class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a new session clears the log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the view follows the rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what becomes of a winner, 0 manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what becomes of a loser, 0 manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>amounts that pay whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>full odds on Pass Line and Come</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>full odds on Don&apos;t Pass and Don&apos;t Come</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place and Buy on a covered number come down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the seat won&apos;t shoot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bets without money</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new session: 0 carry, 1 amount, 2 ask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new session&apos;s bankroll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>check denominations, ascending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>what a bet pays, as in 7 to 5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field by dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>7 Point 7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Midway by dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by points made + 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by line wins + 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by different points made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>works on the come-out; seat 0 the house</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>counts towards comps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 plus, 1 minus, 2 times, 3 divided by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the value of the slot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0 dollars, 1 percent, 2 to 6 units of a check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Take Bet and Winnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Same Bet/Take Winnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Press 1 Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Press Double</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Parlay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Same Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> No Bet/Take Remainder (if any)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Bet Remainder (if any)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Same Bet Plus 1 Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Double Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Show as percentage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Show as +/- from true %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Show as # rolls out of:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Show as +/- from true rolls out of:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> About the 1-6 axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> About the 2-5 axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> About the 3-4 axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fair dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shooter on the 1-6 axis, 10%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded dice, 20% sixes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>18% sevens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>15% sevens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free Form Dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentage Dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;11 basic numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;36 combos (triangle)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3&amp;6 combos (box)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Individual dice faces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set 1st checkstack to #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set 2nd checkstack to #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set 3rd checkstack to #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set 4th checkstack to #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source># Rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source># Bets Decided</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source># Bets Won</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source># Bets Lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source># Bets Won/Lost (Net)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>$ Bets Decided (Handle)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>$ Bets Won</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>$ Bets Lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>$ Bets Won/Lost (Net)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>% Won or Lost (HA)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invested bankroll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ending bankroll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Median</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Std Dev</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skew</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kurtosis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet Trends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll Totals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll Frequencies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All sessions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No bets selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tendered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avg # / hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avg $ / hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source># rolls since last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last roll #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last roll $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prior roll #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Prior roll $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wagers #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wagers $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wins #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Losses #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wagers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Losses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected value $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in a row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Naturals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>c/o rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>passes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>misses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total hands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most rolls in a hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most c/o rolls in a hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most passes in a hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most misses in a hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avg rolls per hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avg c/o rolls per hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avg passes per hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avg misses per hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total session rolls:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total rolls this selection:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source># rolls since last rolled:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual % rolled:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skewed probable %:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>True probable %:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average # of rolls to achieve:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls to come again, and how often</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Numbers %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hard %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die %1, face %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>language of the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As at first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table as it is when the program is started for the first time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3-4-5x odds, $10 table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The usual table of a large house: three times odds on 4 and 10, four on 5 and 9, five on 6 and 8.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>3-4-5x odds, $25 table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same in the evening: a higher minimum, propositions from $5.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Double odds, $5 table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A small house with double odds and every side bet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single odds, bar 2, $5 table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An old house: single odds, two aces barred, no Put bets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10x odds, $10 table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ten times odds on every point, vig only when Buy and Lay bets win.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>20x odds, $5 table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Twenty times odds on every point, a low minimum.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100x odds, $5 table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A hundred times odds on every point: what the house keeps is least here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At home, from a quarter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checks of 25 cents to $25, bets from a quarter to $50.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>untitled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Files</name>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG pictures (*.png);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SVG drawings (*.svg);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PDF files (*.pdf);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Events Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events log file (*.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Events Log As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Session File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session files (*.crp);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Session File As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Auto-Bet File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-bet files (*.bet);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Auto-Bet File As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Auto-Bet File for Hot-Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Probability File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Probability file (*.prb);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Probability File As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Dice Roll File  or  Enter Name For A New File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dice roll file (*.rol);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy To Dice Roll File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy To Roll File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Dice Rolls To Text File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text files (*.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy To Text File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste From Dice Roll File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste From Ascii/Text File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RNG Seed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-bet files (*.bet);;Auto-bet &amp; text files (*.bet *.txt);;Text files (*.txt);;All files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open House Rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>House rules (*.txt);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save House Rules As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Laboratory Report As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web pages (*.html);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dice Roll File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record Dice Rolls During Game Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Playback Dice Rolls During Game Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record Dice Rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Dice Roll File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Dice Rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Sessions Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sessions logs (*.slg);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Sessions Log As</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Laboratory</name>
    <message>
        <source>Laboratory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At the table: session %1 of %2, %3 rolls to %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no session rolled the dice: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: its script has errors: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ends a session at %2 on average: between %3 and %4, 95% sure.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ends a session %2 better than %3 on the same dice: between %4 and %5, 95% sure.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neither is sure to be better: %1 less %2 is %3 a session, between %4 and %5.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>start %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>goal +%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loss limit -%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at most %1 rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at most %1 hands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sessions each, %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 would give ±%2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goal reached</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loss limit met</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ruined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped by itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ended ahead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ended even</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ended behind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sessions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean without luck</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Std Dev</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Median</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>5% quantile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>95% quantile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean drawdown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ahead</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>loss limit %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>goal %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source># sessions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line: 1% to 99%.  Thick: 5% to 95%.  Box: the middle half, bar at the median.  Diamond: mean.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only sessions with a most number of rolls are looked at on the way.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Won or lost, $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls.  Line: median.  Inner band: the middle half.  Outer band: 5% to 95%.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Result of a session, $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bankrolls on the way</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How sessions end, with 95% bounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing has been played yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sessions (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2: A %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, B %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PickList</name>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;None</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrintHeading</name>
    <message>
        <source>Game file:  %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player:  %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>Page %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The pages are being made.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProbabilityPicture</name>
    <message>
        <source>Die 1 down, die 2 across: % points from fair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Totals: filled as set, hatched fair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the dice differ from fair ones</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProbabilityTable</name>
    <message>
        <source>Probability</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Totals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die 1 shows %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die 2 shows %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die 1 shows %1 and die 2 shows %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2, locked</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>%1 (not saved)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Effectiveness %:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die %1, shooter&apos;s effectiveness in percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shooter&apos;s Effectiveness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In so many percent of the rolls a die turns about its axis, so that the two faces at the axis&apos; ends never show. All cells are unlocked first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>* beyond 2 standard errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PERCENT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Probable (skewed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Probable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TIMES</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rolls to come again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>G&amp;old</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Purple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Teal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Or&amp;ange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gr&amp;ey</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blac&amp;k</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No players present</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No players selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All players selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 player selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 players selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, more than two standard errors off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A click on a heading, or Enter, sorts by the column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skewed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;11 basic numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;21 distinguishable combos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;36 unique combos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Dice faces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls that count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outcome of a roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Players who count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bets that count</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Probabilities of the percentage dice, else of true dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Each bet in a row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use thousands &amp;separator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font &amp;bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font &amp;italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display &amp;totals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hide probability bars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph &amp;background color ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Graph bars color ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table below it has its figures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>* more than two standard errors from the probable</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RollChart</name>
    <message>
        <source>Distribution of the totals: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 of %3 rolls, %4%, fair dice %5%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, more than two standard errors away</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 values are no rolls</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RunControls</name>
    <message>
        <source>Stop &amp;Auto-Roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop &amp;Turbo-Roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start &amp;Auto-Roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start &amp;Turbo-Roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-Roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full speed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s a roll</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScriptLexer</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text in quotes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown word</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Sounds</name>
    <message>
        <source>Missing sound files: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableCommands</name>
    <message>
        <source>call a bet ON</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>call a bet OFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>buy a Place bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remove a bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>take a bet to move it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>half each as Any Craps and Eleven</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a quarter each as Two, Three, Eleven and Twelve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a fifth each as Two, Three, Seven, Eleven and Twelve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next click</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Carrying %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moving %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>may still be bet</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TableLayout</name>
    <message>
        <source>PAYS</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ToolMenu</name>
    <message>
        <source>&amp;Print ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print pre&amp;view ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as P&amp;DF ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export table (CSV) ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export p&amp;icture (PNG) ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export drawin&amp;g (SVG) ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dock at the &amp;right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dock &amp;below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dock at the &amp;left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Window of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;lace</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::AdjustEdit</name>
    <message>
        <source>%1: operator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>plus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>minus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>times</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>divided by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(number)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dollars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 units</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::AdvantagePage</name>
    <message>
        <source>by the point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in shares</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by its table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advantage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EV/Roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>StDev/Roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EV/Dec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>StDev/Dec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EV/Hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up/Hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls/Dec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time/Dec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EV and deviation in dollars on the bet amount. Up: what the player has on the table, and what it is expected to bring in an hour. Session: what was to be expected of the bets that this session decided.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet &amp;amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort &amp;by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Only bets that are up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Include &amp;zero outcomes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;misc data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no bets up.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At %1 rolls an hour the bets that %2 has up are expected to bring %3 an hour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Odds are counted while a point is on, and Come and Don&apos;t Come bets are made while one is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> How far an hour strays from that is left out: what %1 has in common with the other bets can&apos;t be told.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No bet has been decided in this session.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This session decided %1 of bets: %2 was to be expected of them, %3 it came to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1% of all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1% of winners</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dice: %1. A roll takes %2. Buy vig: %3. Lay vig: %4. Bar: %5. %6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>percentage dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fair</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls that leave a bet in place count as decisions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only wins and losses count as decisions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, give or take %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::AmountSelector</name>
    <message>
        <source>Bet amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount that a click bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The amount that a click bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet %1 a click</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::AtmScreen</name>
    <message>
        <source>ATM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bankroll:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the table:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rail:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawn from the ATM:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow &amp;negative bankroll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ATM is switched off in the configuration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;mount:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Withdraw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Deposit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::AutoPlayScreen</name>
    <message>
        <source>Auto-&amp;take full odds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On Pass Line and Come, when a point is set and when the flat bet changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-&amp;lay full odds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On Don&apos;t Pass and Don&apos;t Come, when a point is set and when the flat bet changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-&amp;down Place bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place and Buy bets on the number of a line or Come bet come down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-&amp;pass the dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The player never shoots</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place and Buy:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do side, others:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t side:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lay:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Auto w/ minor correction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Auto w/ color correction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-Play</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pla&amp;yer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Winning bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Losing bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet amounts that pay whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By the change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Upward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work on come-out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::BankrollGraphScreen</name>
    <message>
        <source>Bankroll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modes, averages, colors, printing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>High</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Low</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference line %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bankroll dif</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>- Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale +</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Turbo-Roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fast</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>slow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>@ %1 rolls/hr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>= %1 sim hrs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls diff</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plot &amp;type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scroll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ad&amp;just scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-&amp;shift </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-shift with &amp;expanding scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-shift with s&amp;nap-back scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display &amp;grid lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display &amp;reference lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display moving &amp;average</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set &amp;moving average ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Players together</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph st&amp;yle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Plain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Striped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;olid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set &amp;color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Background ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Text ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Grid lines ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start of the session ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bank&amp;roll ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Area under the bankroll ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Moving average ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference line &amp;1 ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reference line &amp;2 ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pointer ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Default colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print &amp;now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;uto-print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grap&amp;hs on a page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Auto-Roll time &amp;delay ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Auto-St&amp;op ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;logged messages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::CheckStackList</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place %1 at the rail</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::CheckStackView</name>
    <message>
        <source>Value of CheckStack %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of CheckStack %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::CheckStacksScreen</name>
    <message>
        <source>CheckStacks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo, clipboard, deletions, the stacks on the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Accept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Und&amp;o	Ctrl+Z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo	Ctrl+Y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t	Ctrl+X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy	Ctrl+C</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste	Ctrl+V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete	Del</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete all val&amp;ues</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete all &amp;names</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Set visible checkstacks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Display &amp;zero values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Font size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Desktop&apos;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CheckStacks of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::CompsPage</name>
    <message>
        <source>Total comp action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comp bets decided</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected result</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Avg action x time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comp value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comps so far</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scope</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bets figured in comps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wagered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A double click or the space bar changes a bet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::ConfigurationScreen</name>
    <message>
        <source>House</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payoffs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advantage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Layout</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bankroll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Probability</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Generator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Misc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not taken yet: %1. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A double click or the space bar changes a bet. New players take this as they buy in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> - No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Work on come-out roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore default denominations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount to add or subtract</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Subtract</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add or subtract</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no players at the table.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stick person</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt; none &gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stick person 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt; random &gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program&apos;s sound files aren&apos;t there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls / hr</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls / min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls / sec</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hrs / roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mins / roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Secs / roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the rate is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Simulated roll rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Odds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rules</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buy bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lay bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bets on the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stacks and amounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ATM</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All sounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Messages to show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font size of the screens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dice on the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Figure comps based on:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For every new session:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>dollars</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x flat bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Bar 12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Bar 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Small</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum prop bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max prop bet payoff</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum odds bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Odds on 4 and 10</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Odds on 5 and 9</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Odds on 6 and 8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Odds calculation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To shoot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow Put bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return abandoned bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vig</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rounding</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buy vig</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lay vig</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Big 6 and Big 8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Midway bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Special prop bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fire bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max Fire bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-arrange checks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use cents symbol below a dollar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Third check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fourth check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fifth check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow negative bankroll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At a new session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New session&apos;s bankroll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bankroll offered</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The ATM works</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Usual amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sounds of auto-bet scripts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable all sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Info tips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snap to the default button of a box</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print in colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use true probabilities</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comp rate</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::EventsLogScreen</name>
    <message>
        <source>Everything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls, passes and misses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wins and losses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Losses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bankrolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CheckStacks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shooters and hands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sessions, players, scripts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lo&amp;g</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Look at another log ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back to the table&apos;s log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record &amp;events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bet changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bets &amp;won</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bets &amp;lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CheckS&amp;tack changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Passes and misses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;hooter changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ban&amp;kroll changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Deselect all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear log when new sessions start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scroll new rolls to the top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Follow the end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fon&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Italic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Normal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In&amp;active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind of lines shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player whose lines are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text to find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events are recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events are not recorded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events Log (%1, only looked at)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events Log (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About line %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Events</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tessaryn Events Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Events Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2% read)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::EventsLogView</name>
    <message>
        <source>Lines of the Events Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line at the top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blanks to the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No such lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The log is empty</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::FindReplaceScreen</name>
    <message>
        <source>Fi&amp;nd:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace &amp;by:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find ne&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replace &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not in the script.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 replaced</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::GeneratorPage</name>
    <message>
        <source>Mersenne Twister, 32 bits a number, a number for each die. The usual choice.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A second Mersenne Twister with a seeding of its own, a number for each die.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plain congruence with 714,025 states: short, and good for comparing systems on poor dice. Its seeds end at 999,999.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One congruence whose numbers are shuffled through a table of 97.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Three congruences: two make the number, the third shuffles a table of 97.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RNG #1 and RNG #5 by turns, a roll each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>RNG #2 and RNG #4 by turns, a roll each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As RNG #1, both dice from one number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random number generator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Random number &amp;generator:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Seed normally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> User seed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clock gives each seed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are asked for each seed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Re-seed new sessions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seed RNG now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last entered seed:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::GraphView</name>
    <message>
        <source>Bankroll graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll %1:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::HotKeysScreen</name>
    <message>
        <source>Hot-Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-Bet file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-Bet &amp;file:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Select ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::HousePage</name>
    <message>
        <source>Houses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the house changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>House</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save rules as ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use this house</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table has these rules.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::LaboratoryScreen</name>
    <message>
        <source>Laboratory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sessions played</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends the experiment with what is known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comp&amp;are A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;with B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages of the laboratory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xperiment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Res&amp;ults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the wa&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;nds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All systems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All s&amp;ystems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of the session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>System of the session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play it at the &amp;table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the session on the table in place of the game, to be watched roll by roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;port ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(none)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The first sessions are being played ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What does a system bring over a whole session?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add systems, say how sessions end, and run: each session has dice of its own, the same for every system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pa&amp;use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;ontinue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Run %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tessaryn Laboratory</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::LaboratorySetup</name>
    <message>
        <source>Laboratory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Systems, all on the same dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Systems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add s&amp;cript ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;player&apos;s script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standing bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standing bets: passline=10, place6=12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add &amp;bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;takes that CheckStacks start at, each a system of its own:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stakes that CheckStacks start at</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>as the scripts have them; or 1=5,10,25 or 1=5..50:5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sessions and their ends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sess&amp;ions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Start with $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most r&amp;olls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>any</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Most &amp;hands</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Win goal $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Loss limit $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>after the hand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>when no contract bet is up any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ends fall</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Known to ±$</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stops as soon as each mean is known so well, 95% sure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table and dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See&amp;d</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;ules and dice of this table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected player has no script.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to play: add a script, or standing bets.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stakes %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start with: must be from 0.01 to %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::LooksPage</name>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Teal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Burgundy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purple</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gray</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cloth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lettering</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rail</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Round the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Third check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fourth check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fifth check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;$&quot; check</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First die</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second die</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pips</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All as at first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Texture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lettering in a font of my own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::MainWindow</name>
    <message>
        <source>Tessaryn Turbo-Roll Stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Come-out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Point %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shooter: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::MessageScreen</name>
    <message>
        <source>&amp;OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::MovePanel</name>
    <message>
        <source>Move Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With Shift or Ctrl: to the window&apos;s border</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By 30 degrees; Shift 90, Ctrl 45, both 180</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table into the middle of the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn clockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn counterclockwise</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift: to the window&apos;s height; Ctrl: to its width; both: to the limit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::NewSessionScreen</name>
    <message>
        <source>New Session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All bets are taken down and a new session starts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Preserve dice roll file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Rewind and playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Continue </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Preserve auto-bet scripts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Preserve previous sessions data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Preserve checkstacks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Preserve sessions logs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::PadGrid</name>
    <message>
        <source>Roll a %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll %1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First die %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Second die %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::PayoffPage</name>
    <message>
        <source>Passline/Come (c.o.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pass/Come %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pass/Come %1 Odds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don&apos;t Pass/Come (c.o.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DP/DC %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DP/DC %1 Odds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Come-out 7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seven after the point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 or more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 point made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 points made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 line win</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 line wins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 different point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 different points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>7 Point 7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Midway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sharp Shooter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ride The Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fire</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Field w/ 2x on Two and Twelve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Pass Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Don&apos;t Pass (bar 12)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Crapless Craps Pass Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place &amp;6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place to &amp;Lose 8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buy &amp;10 (5 % vig)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lay &amp;4 (5% vig on win only)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H&amp;ard 8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Horn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;World</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H&amp;op 13</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Midway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Outcome</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to/for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Per</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not taken yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>originally %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payoffs of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payoffs &amp;of</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payoffs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter goes from number to number; t and f write the word between them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Set Field payoffs to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Restore default payoffs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payoff of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet or outcome</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::PercentageDiceWindow</name>
    <message>
        <source>Percentage Dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die 1 \ Die 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die 2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Die 1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Probability</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Probability file: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::PermissionsScreen</name>
    <message>
        <source>Auto-Bet Permissions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1&apos;s script may:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>act for &amp;other players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>start new &amp;sessions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>activate and deactivate &amp;probability files and dice roll files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::PlayerChoice</name>
    <message>
        <source>Player</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::ProbabilityPage</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Lock or unlock the cell	L</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Shooter&apos;s effectiveness ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready &amp;dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;ven Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps this cell&apos;s value; what isn&apos;t locked shares the rest equally</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is free to share the rest.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Unlock All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percentage dice in use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2%, fair dice %3%</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>. Locked: L unlocks it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>. Type a value, L locks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is free to take up the difference: the cell keeps its value.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::ProbabilityTable</name>
    <message>
        <source>Probabilities of the dice</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::RollFilesWindow</name>
    <message>
        <source>&amp;New / Open ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy To &amp;Roll File ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy To &amp;Text File ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste &amp;From Roll File ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste From Te&amp;xt File ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dice Roll Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Highlight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font &amp;size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;As the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entering rolls, and their distribution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter %1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enters %1 and %2. In the list: type %1%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Type over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Insert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ran&amp;dom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Output format:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll#, Die1, Die2 and Total stand for the values; all else is copied as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>■ Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>● Record</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>▶ Playback</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recorder off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Record the game&apos;s rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play the file&apos;s rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next roll &amp;is roll #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll 12, 3 and 4: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No die and no total in it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rolls counted ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All %1 rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The %1 selected rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Dice Rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll file:  %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of rolls to be printed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · % · hatched: fair</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::RollList</name>
    <message>
        <source>&amp;Nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Sevens</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Craps: 2, 3 and 12</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Point numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Si&amp;x and eight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;airs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First roll shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No dice roll file is open.
File, New or Open begins.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>end of file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No dice roll file is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dice rolls, next roll %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, rolls %2 to %3 selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::RollPad</name>
    <message>
        <source>&amp;Random Roll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll Your Own Numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Display</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll &amp;counter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Turbo-Roll button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Random button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Auto-Roll t&amp;ime delay ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Auto-&amp;Stop ...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::RunControls</name>
    <message>
        <source>R&amp;oll</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pass dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Roll the dice (F2, or right click on the table)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pass the dice (P)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed of a run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How fast a run goes: full speed on the left, Auto-Roll on the right</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsHistogram</name>
    <message>
        <source># S e s s i o n s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sessions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2: %3, %4% at or below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sessions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Histogram of the sessions</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsLogScreen</name>
    <message>
        <source>Lo&amp;g</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>N&amp;ew (all players)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Merge ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete a&amp;ll ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;ptions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set &amp;break-point ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph bar &amp;width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Wide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Extra wide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Normal curve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Histogram</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How much of the log has been read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Handle $</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Advantage %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Won</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broke-even</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These sessions take part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out outliers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>standard deviations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deviations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lowest value that takes part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Highest value that takes part</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From, to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The figures are not of this choice: the calculation was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The statistics could not be calculated.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Calculate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sessions Log (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Near the middle one of the values, which is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Break-point: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 sessions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tessaryn Sessions Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player:  %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log:  %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Values from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Sessions Log Raw Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Sessions Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of sessions: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of pages: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are no sessions selected for printing.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::SessionsRows</name>
    <message>
        <source>Sessions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session at the top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Session #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source># Rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Include</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard Deviations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sessions</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::SettleBetScreen</name>
    <message>
        <source>&amp;Take Bet and Winnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Same Bet - Take Winnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press 1 &amp;Unit - Add $%1 to Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press - Add Winnings to &amp;Double Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parlay - Add &amp;All Winnings to Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;me Bet:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bet:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No Bet/Take Remainder (if any)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Same Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet &amp;Remainder (if any)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same Bet Plus 1 &amp;Unit - Add $%1 to Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Double Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Half of the bet wins:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Half of the bet loses:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A quarter of the bet wins:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Three quarters of the bet lose:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fifth of the bet wins:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Four fifths of the bet lose:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points made:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line wins:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Different points made:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payoff at %1 for %2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payoff at %1 to %2:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet lost:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1% vig:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net payoff:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net loss:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net payoff (rounded):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net loss (rounded):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ODDS OFF</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>WINNER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>LOSER</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, bet %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The odds weren&apos;t working: nothing was won or lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This bet is over. It comes down with every choice.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::SortChoice</name>
    <message>
        <source>Sort by</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table order</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::TableWidget</name>
    <message>
        <source>Craps table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click an open position on the rail to add a player.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::ToolDock</name>
    <message>
        <source>Print, copy, place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A window of its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::TurboPanel</name>
    <message>
        <source>&amp;Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turbo-Roll Active</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls a second</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopEditor</name>
    <message>
        <source>Script</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopSteps</name>
    <message>
        <source>&amp;Wait after each statement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statements carried out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-Bet Steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-Bet Steps (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopTrial</name>
    <message>
        <source>Try it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rolls</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tr&amp;y it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same &amp;dice again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The script runs on a copy of the table; the game stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bets of the trial</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Won</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rolls in %2 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (line %2, %3 times)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run before: %1, %2 rolls</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopWatch</name>
    <message>
        <source>Watch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>tessaryn::WorkshopWindow</name>
    <message>
        <source>Logic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Functions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Modifiers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;mples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;as ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Print in colours ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Replace ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Words that go on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;ut in the proposal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Meaning of the word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Check script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Activate all scripts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run &amp;one cycle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run to the c&amp;ursor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Break-point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tr&amp;y it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Permissions ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Line numbers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lists of &amp;words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Auto-indent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;layer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;ctive</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check Script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run one cycle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Below the script</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Logged bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Words of the language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log &amp;my bets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When they are made</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As they stand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the come-out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After a point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1, column %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-Bet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nobody is at the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto-Bet - %1 - %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, not saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>may act for other players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>may start sessions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>may use files of dice</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statement</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File ...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+. puts in &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problems (1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
