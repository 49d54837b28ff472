/*
 * The standings themselves, by conference or by division, and two charts: how the points have grown, and goals for and
 * against. Both are tables, too.
 */
'use strict';

{
  const PLAYOFF_PLACES = 8;
  const CHART_HEIGHT = 360;
  const COLOURS = ['#0b6bcb', '#d7263d', '#2c8a3f', '#b8860b', '#8a4bd3', '#008b94', '#c2508f', '#6b7280', '#a0522d',
    '#4b7f00', '#3f51b5', '#e0650b'];
  const MARKS = {x: 'has a play-off place', y: 'has won the division', z: 'has won the conference'};
  const [view] = document.querySelectorAll('.filters select');
  const [group] = document.querySelectorAll('#race-group');

  const groupsOf = (standings, key) => [...Map.groupBy?.(standings, (row) => row[key]) ??
    standings.reduce((groups, row) => groups.set(row[key], [...groups.get(row[key]) ?? [], row]), new Map())];

  function markOf(mark) {
    return mark ? make('abbr', {title: MARKS[mark]}, mark) : '';
  }

  function standingsTable(names, [name, rows], by) {
    const place = by === 'conference' ? 'seed' : 'place';
    const body = [...rows].sort((a, b) => a[place] - b[place]).map((row) => {
      const line = rowOf(row[place], markOf(row.mark), teamLink(names, row.team), row.GP, row.W, row.L, row.T,
        row['Pts.'], row.GF, row.GA, make('td', {className: 'figure'}, row['last ten']),
        make('td', {className: 'figure'}, row.streak));
      line.classList.toggle('last-place', by === 'conference' && row[place] === PLAYOFF_PLACES);
      return line;
    });
    const id = `standings-${name}`;
    const box = make('div', {className: 'scroller', tabIndex: 0},
      tableOf(['#', 'Mark', 'Team', 'GP', 'W', 'L', 'T', 'Pts.', 'GF', 'GA', 'Last 10', 'Streak'], body));
    box.setAttribute('role', 'region');
    box.setAttribute('aria-labelledby', id);
    return [make('h2', {id}, `${name} ${by === 'conference' ? 'Conference' : 'Division'}`), box];
  }

  /** The points of each team after each of its games of the season. */
  function pointsByGame(games, team) {
    let points = 0;
    return [0, ...games.filter(playedBy(team)).map((game) => points += {W: 2, T: 1, L: 0}[resultFor(team, game).letter])];
  }

  const charted = () => getComputedStyle(document.documentElement);

  /** Done when the visitor comes near the charts, and what draws them has been loaded. */
  const chartsWanted = () => new Promise((wanted) => {
    const load = () => {
      near.disconnect();
      document.head.append(make('script', {src: siteLink('uplot.js').href, onload: wanted}));
    };
    const near = new IntersectionObserver(([{isIntersecting}]) => isIntersecting && load(), {rootMargin: '50%'});
    near.observe(document.getElementById('race'));
    window.addEventListener('beforeprint', load, {once: true});
  });

  let plot = null;
  function drawRace(names, games, rows) {
    const box = document.getElementById('race');
    const series = rows.map(({team}) => pointsByGame(games, team));
    const longest = Math.max(...series.map(({length}) => length));
    const lines = series.map((points) => Array.from({length: longest}, (_, i) => points[i] ?? null));
    const axis = {stroke: charted().getPropertyValue('--text'), grid: {stroke: charted().getPropertyValue('--line')},
      ticks: {stroke: charted().getPropertyValue('--line')}};
    plot?.destroy();
    plot = new uPlot({
      width: box.clientWidth, height: CHART_HEIGHT, scales: {x: {time: false}},
      axes: [{...axis, label: 'Games'}, {...axis, label: 'Points', size: 56}],
      series: [{label: 'Game'}, ...rows.map(({team}, i) => ({label: team, stroke: COLOURS[i % COLOURS.length], width: 2}))],
    }, [Array.from({length: longest}, (_, i) => i), ...lines], box);
    box.querySelector('canvas').setAttribute('aria-hidden', 'true');
    const every = Math.max(1, Math.ceil((longest - 1) / 10));
    const games10 = Array.from({length: longest}, (_, i) => i).filter((i) => i > 0 && (i % every === 0 || i === longest - 1));
    document.getElementById('race-table').replaceChildren(tableOf(['Team', ...games10.map((n) => `After ${n}`)],
      rows.map(({team}, i) => rowOf(names.get(team), ...games10.map((n) => series[i][n] ?? '')))));
  }

  function bar(value, most, kind) {
    const cell = make('td', {className: 'bar'}, make('span', {className: kind}), make('b', {}, String(value)));
    cell.firstChild.style.width = `${most > 0 ? 70 * value / most : 0}%`;
    return cell;
  }

  function drawGoals(names, standings) {
    const most = Math.max(...standings.flatMap(({GF, GA}) => [GF, GA]));
    const rows = [...standings].sort((a, b) => (b.GF - b.GA) - (a.GF - a.GA)).map((row) =>
      rowOf(teamLink(names, row.team), bar(row.GF, most, 'for'), bar(row.GA, most, 'against'), row.GF - row.GA));
    document.getElementById('goals').replaceChildren(tableOf(['Team', 'For', 'Against', 'Diff.'], rows));
  }

  async function show() {
    const [standings, games, names] = await Promise.all([dataOf('standings'), dataOf('games'), teamNames()]);
    const tablesBox = document.getElementById('standings');
    if (!standings) {
      tablesBox.replaceChildren(noData());
      document.getElementById('charts').hidden = true;
      return;
    }
    const by = view.value;
    tablesBox.replaceChildren(...groupsOf(standings, by).flatMap((one) => standingsTable(names, one, by)));
    tablesBox.removeAttribute('aria-busy');
    const season = games?.filter(({part}) => part === 'season') ?? [];
    document.getElementById('charts').hidden = season.length === 0;
    if (season.length > 0) {
      await drawCharts(names, season, standings);
    }
  }

  let charts = null;
  async function drawCharts(names, season, standings) {
    drawGoals(names, standings);
    charts ??= chartsWanted();
    await charts;
    const race = () => drawRace(names, season, standings.filter(({division}) => division === group.value)
      .sort((a, b) => a.place - b.place));
    group.onchange = race;
    race();
    new ResizeObserver(([{contentRect}]) => plot.setSize({width: contentRect.width, height: CHART_HEIGHT}))
      .observe(document.getElementById('race'));
    matchMedia('(prefers-color-scheme: dark)').onchange = race;
  }

  const {searchParams} = new URL(location.href);
  view.value = searchParams.get('by') === 'division' ? 'division' : 'conference';
  view.addEventListener('change', () => {
    const address = new URL(location.href);
    address.searchParams.set('by', view.value);
    history.replaceState(null, '', address);
    show();
  });
  show();
}
