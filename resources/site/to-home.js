/* Leads the link of 404.html to the league's home page, which is where this script is. */
'use strict';

{
  const home = new URL('index.htm', document.currentScript.src);
  document.addEventListener('DOMContentLoaded', () => {
    document.getElementById('home').href = home;
  });
}
