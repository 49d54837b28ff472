<?php
$teams = explode(' ', 'BOS BUF CGY CHI DET EDM HFD LI LA MIN MTL NJ NYR OTA PHI PIT QUE SJ STL TB TOR VAN WSH WPG');
$team = isset($_GET['team']) && in_array($_GET['team'], $teams, true) ? $_GET['team'] : '';
function rows($team, $part)
{
  $file = __DIR__ . "/{$team}_$part.php";
  if ($team !== '' && is_file($file)) {
    readfile($file);
  }
}
?>
<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Rinkstar - Playoff Player Stats</title>
<link rel="stylesheet" href="../styles.css">
<link rel="stylesheet" href="../landing.css">
<link rel="icon" href="../favicon.svg" type="image/svg+xml">
<script src="../tables.js" defer></script>
</head>
<body>
<nav aria-label="Site">
<p><a href="../index.htm"><b> Home</b></a> | <a href="../BoxScores.htm"><b> Box Scores</b></a> | <a href="../PlayerStats.htm"><b> Player Stats</b></a> | <a href="../TeamStats.htm"><b> Team Stats</b></a> | <a href="../Standings.htm"><b> Standings</b></a> | <a href="../LeagueLeaders.htm"><b>  League Leaders</b></a> | <a href="../CoachingStats.htm"><b>  Coaching Stats</b></a> | <a href="../PlayerProfiles.htm"><b>  Player Profiles</b></a> | <a href="../AllTimeRecords.htm"><b>  All-Time Records</b></a> | <a href="../Playoffs.htm"><b>  Playoffs</b></a></p>
</nav>
<main>
<h1><img src="../Headers/PlayoffPlayerStats.gif" alt="Playoff Player Stats"></h1>
<p class="team-strip" id="teams">
<a href="?team=BOS"><img src="../LogoMinis/BOS.gif" alt="Boston Bruins" title="Boston Bruins" width="24" height="24"></a>
<a href="?team=BUF"><img src="../LogoMinis/BUF.gif" alt="Buffalo Sabres" title="Buffalo Sabres" width="24" height="24"></a>
<a href="?team=CGY"><img src="../LogoMinis/CGY.gif" alt="Calgary Flames" title="Calgary Flames" width="24" height="24"></a>
<a href="?team=CHI"><img src="../LogoMinis/CHI.gif" alt="Chicago Blackhawks" title="Chicago Blackhawks" width="24" height="24"></a>
<a href="?team=DET"><img src="../LogoMinis/DET.gif" alt="Detroit Red Wings" title="Detroit Red Wings" width="24" height="24"></a>
<a href="?team=EDM"><img src="../LogoMinis/EDM.gif" alt="Edmonton Oilers" title="Edmonton Oilers" width="24" height="24"></a>
<a href="?team=HFD"><img src="../LogoMinis/HFD.gif" alt="Hartford Whalers" title="Hartford Whalers" width="24" height="24"></a>
<a href="?team=LI"><img src="../LogoMinis/LI.gif" alt="Long Island Islanders" title="Long Island Islanders" width="24" height="24"></a>
<a href="?team=LA"><img src="../LogoMinis/LA.gif" alt="Los Angeles Kings" title="Los Angeles Kings" width="24" height="24"></a>
<a href="?team=MIN"><img src="../LogoMinis/MIN.gif" alt="Minnesota North Stars" title="Minnesota North Stars" width="24" height="24"></a>
<a href="?team=MTL"><img src="../LogoMinis/MTL.gif" alt="Montreal Canadiens" title="Montreal Canadiens" width="24" height="24"></a>
<a href="?team=NJ"><img src="../LogoMinis/NJ.gif" alt="New Jersey Devils" title="New Jersey Devils" width="24" height="24"></a>
<a href="?team=NYR"><img src="../LogoMinis/NYR.gif" alt="New York Rangers" title="New York Rangers" width="24" height="24"></a>
<a href="?team=OTA"><img src="../LogoMinis/OTA.gif" alt="Ottawa Senators" title="Ottawa Senators" width="24" height="24"></a>
<a href="?team=PHI"><img src="../LogoMinis/PHI.gif" alt="Philadelphia Flyers" title="Philadelphia Flyers" width="24" height="24"></a>
<a href="?team=PIT"><img src="../LogoMinis/PIT.gif" alt="Pittsburgh Penguins" title="Pittsburgh Penguins" width="24" height="24"></a>
<a href="?team=QUE"><img src="../LogoMinis/QUE.gif" alt="Quebec Nordiques" title="Quebec Nordiques" width="24" height="24"></a>
<a href="?team=SJ"><img src="../LogoMinis/SJ.gif" alt="San Jose Sharks" title="San Jose Sharks" width="24" height="24"></a>
<a href="?team=STL"><img src="../LogoMinis/STL.gif" alt="St. Louis Blues" title="St. Louis Blues" width="24" height="24"></a>
<a href="?team=TB"><img src="../LogoMinis/TB.gif" alt="Tampa Bay Lightning" title="Tampa Bay Lightning" width="24" height="24"></a>
<a href="?team=TOR"><img src="../LogoMinis/TOR.gif" alt="Toronto Maple Leafs" title="Toronto Maple Leafs" width="24" height="24"></a>
<a href="?team=VAN"><img src="../LogoMinis/VAN.gif" alt="Vancouver Canucks" title="Vancouver Canucks" width="24" height="24"></a>
<a href="?team=WSH"><img src="../LogoMinis/WSH.gif" alt="Washington Capitals" title="Washington Capitals" width="24" height="24"></a>
<a href="?team=WPG"><img src="../LogoMinis/WPG.gif" alt="Winnipeg Jets" title="Winnipeg Jets" width="24" height="24"></a>
</p>
<noscript><p class="notice">A team's tables stand here when the league's webpages have been generated and a team is
chosen above. They need a browser that runs scripts, or a host that runs PHP.</p></noscript>
<p class="notice" id="no-team" hidden></p>
<div id="team">
<p class="team-head"><img id="team-name" data-team-src="../BigBanners/{team}.gif" alt="">
<img data-team-src="../BigLogos/{team}.gif" alt=""></p>
<p class="see-also"><a data-team-href="../PlayoffTStats/{team}.htm">Playoff Team Stats</a>
<a data-team-href="../PlayoffProfiles/{team}/index.htm">Playoff Roster</a>
<a data-team-href="../PStats/index.php?team={team}">Season Player Stats</a></p>
<h2 id="record-title">Record</h2>
<div class="scroller" role="region" aria-labelledby="record-title" tabindex="0">
<table id="record" class="record" data-fragment="./{team}_records.php">
<thead><tr>
<th scope="col">W</th>
<th scope="col">L</th>
<th scope="col">T</th>
<th scope="col">Pts.</th>
<th scope="col">Win%</th>
<th scope="col">GP</th>
</tr></thead>
<tbody><?php rows($team, 'records') ?></tbody>
</table>
</div>
<h2 id="skaters-title">Forwards / Defensemen</h2>
<div class="scroller" role="region" aria-labelledby="skaters-title" tabindex="0">
<table id="skaters" class="roster" data-fragment="./{team}_N{order}.php" data-order="2">
<thead><tr>
<th scope="col"></th>
<th scope="col" data-descending="0" data-ascending="14">Pos</th>
<th scope="col" data-descending="1" data-ascending="15">#</th>
<th scope="col" class="name" data-ascending-first data-descending="27" data-ascending="13">Name</th>
<th scope="col" data-descending="2" data-ascending="16">Pow.Rank</th>
<th scope="col" data-descending="3" data-ascending="17">G</th>
<th scope="col" data-descending="4" data-ascending="18">A</th>
<th scope="col" data-descending="5" data-ascending="19">Pts.</th>
<th scope="col" data-descending="6" data-ascending="20">PPG</th>
<th scope="col" data-descending="7" data-ascending="21">S%</th>
<th scope="col" data-descending="8" data-ascending="22">SOG</th>
<th scope="col" data-descending="9" data-ascending="23">PP</th>
<th scope="col" data-descending="10" data-ascending="24">SH</th>
<th scope="col" data-descending="11" data-ascending="25">PIM</th>
<th scope="col" data-descending="12" data-ascending="26">GP</th>
</tr></thead>
<tbody><?php rows($team, 'N2') ?></tbody>
</table>
</div>
<h2 id="goalies-title">Goalies</h2>
<div class="scroller" role="region" aria-labelledby="goalies-title" tabindex="0">
<table id="goalies" class="roster" data-fragment="./{team}_G{order}.php" data-order="2">
<thead><tr>
<th scope="col"></th>
<th scope="col" data-descending="0" data-ascending="14">Pos</th>
<th scope="col" data-descending="1" data-ascending="15">#</th>
<th scope="col" class="name" data-ascending-first data-descending="27" data-ascending="13">Name</th>
<th scope="col" data-descending="2" data-ascending="16">Pow.Rank</th>
<th scope="col" data-descending="3" data-ascending="17">W</th>
<th scope="col" data-descending="4" data-ascending="18">L</th>
<th scope="col" data-descending="5" data-ascending="19">T</th>
<th scope="col" data-descending="6" data-ascending="20">GAA</th>
<th scope="col" data-descending="7" data-ascending="21">SV%</th>
<th scope="col" data-descending="8" data-ascending="22">SHO</th>
<th scope="col" data-descending="9" data-ascending="23">SF</th>
<th scope="col" data-descending="10" data-ascending="24">GA</th>
<th scope="col" data-descending="11" data-ascending="25">A</th>
<th scope="col" data-descending="12" data-ascending="26">GP</th>
</tr></thead>
<tbody><?php rows($team, 'G2') ?></tbody>
</table>
</div>
<h2 id="leaders-title">Team Leaders</h2>
<table id="leaders" class="team-leaders" data-fragment="./{team}_leaders.php">
<tbody><?php rows($team, 'leaders') ?></tbody>
</table>
</div>
</main>
</body>
</html>
