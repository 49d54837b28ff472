<?php require __DIR__ . '/../team.php'; exit(team_page(__DIR__)) ?>
<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self'; connect-src 'self'; base-uri 'none'; form-action 'none'">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Rinkstar - Playoff Player Stats</title>
<link rel="stylesheet" href="../styles.css">
<link rel="stylesheet" href="../landing.css">
<link rel="icon" href="../favicon.svg" type="image/svg+xml">
<link rel="apple-touch-icon" href="../apple-touch-icon.png">
<!-- A host without PHP sends this page, and a browser takes the line of PHP for a comment. -->
<script src="../to-team.js"></script>
</head>
<body>
<main>
<h1>Player Stats</h1>
<p><a href="./team.htm">Choose a team</a> to see its players.</p>
</main>
</body>
</html>
