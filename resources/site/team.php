<?php
/**
 * The page of one team as a host with PHP gives it, whole even without scripts: team.htm of $folder with the title,
 * the pictures, the links and the rows of the team that ?team= names. A team counts only when the page links to it.
 */
function team_page($folder)
{
  $page = preg_replace('~<noscript>.*?</noscript>\s*~s', '', file_get_contents("$folder/team.htm"));
  preg_match_all('~<a href="\?team=(\w+)"><img[^>]* alt="([^"]*)"~', $page, $links);
  $place = array_search(isset($_GET['team']) ? $_GET['team'] : '', $links[1], true);
  if ($place === false) {
    return str_replace('id="no-team" hidden', 'id="no-team"', $page);
  }
  $team = $links[1][$place];
  $name = $links[2][$place];
  $page = strtr($page, [
    '</title>' => ": $name</title>",
    "<a href=\"?team=$team\"" => "<a href=\"?team=$team\" aria-current=\"page\"",
    'id="team" hidden' => 'id="team"',
    'id="team-name"' => "id=\"team-name\" title=\"$name\"",
    'data-team-src' => 'src',
    'data-team-href' => 'href',
    '{team}' => $team,
  ]);
  $table = '~data-fragment="\./(\w+)(?:\{order\})?\.php"(?: data-order="(\d+)")?>.*?<tbody>~s';
  return preg_replace_callback($table, function ($found) use ($folder) {
    return $found[0] . rows_of("$folder/$found[1]" . (isset($found[2]) ? $found[2] : '') . '.php');
  }, $page);
}

/** The rows of a fragment in UTF-8; those that are not come from the 8-bit text of older Windows rosters. */
function rows_of($fragment)
{
  $rows = is_file($fragment) ? file_get_contents($fragment) : '';
  return preg_match('~~u', $rows) ? $rows : iconv('windows-1252', 'UTF-8//IGNORE', $rows);
}
