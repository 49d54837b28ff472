/* Leads from the address that the standings link to, which needs PHP, to the page that shows the same without it. */
'use strict';

location.replace(`team.htm${location.search}${location.hash}`);
