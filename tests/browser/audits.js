/** What is checked of the look of a page. Each function runs within the page and needs nothing from outside. */

/** How many pixels of the page and of its bar lie beyond the right edge of the window. */
export function overflow() {
  const {scrollWidth, clientWidth} = document.documentElement;
  const entries = [...document.querySelectorAll('p a[href]')].filter(({lastElementChild}) =>
    lastElementChild?.matches('b')).slice(0, 10);
  const right = Math.max(...entries.map((entry) => entry.getBoundingClientRect().right));
  return {page: Math.max(0, scrollWidth - clientWidth), bar: Math.max(0, Math.ceil(right - innerWidth))};
}

/** The controls that a finger would miss: smaller than `least` pixels either way. */
export function smallTargets(least) {
  return [...document.querySelectorAll('a[href], button, select, input')]
    .filter((target) => target.checkVisibility() && !target.matches('.skip'))
    .map((target) => ({target, box: target.getBoundingClientRect()}))
    .filter(({box}) => box.width < least || box.height < least)
    .map(({target, box}) => `${target.outerHTML.slice(0, 80)}: ${box.width} x ${box.height}`);
}

/**
 * The texts that stand out from their background by less than `least` to 1, what style sheets add included. The
 * background of a text is that of the elements around it; not covered are lettering within pictures, text in front of
 * a picture or of an element that it merely overlaps, colours under the pointer, and the rows of a table after the
 * first ten, which look like those.
 */
export function faintTexts(least) {
  const parse = (text) => {
    const [red, green, blue, alpha = 1] = text.match(/[\d.]+/g).map(Number);
    return {rgb: [red, green, blue], alpha};
  };
  const over = (front, back) => front.rgb.map((part, i) => part * front.alpha + back[i] * (1 - front.alpha));
  const luminance = (rgb) => {
    const [red, green, blue] = rgb.map((part) => part / 255).map((part) =>
      part <= 0.04045 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4);
    return 0.2126 * red + 0.7152 * green + 0.0722 * blue;
  };
  const backgrounds = new Map([[null, [255, 255, 255]]]);
  const backgroundOf = (element) => {
    if (!backgrounds.has(element)) {
      backgrounds.set(element, ownBackground(element));
    }
    return backgrounds.get(element);
  };
  const ownBackground = (element) => {
    const {backgroundColor, backgroundImage} = getComputedStyle(element);
    if (backgroundImage !== 'none') {
      return null;
    }
    const own = parse(backgroundColor);
    const behind = own.alpha === 1 ? own.rgb : backgroundOf(element.parentElement);
    return behind && over(own, behind);
  };

  const found = new Map();
  const look = (text, style, background) => {
    if (!/\S/.test(text) || style.visibility === 'hidden' || parseFloat(style.fontSize) === 0 || !background) {
      return 0;
    }
    const [dark, light] = [over(parse(style.color), background), background].map(luminance).sort((a, b) => a - b);
    const ratio = (light + 0.05) / (dark + 0.05);
    if (ratio < least) {
      found.set(`${style.color} on ${background}`, `${text.trim()}: ${ratio.toFixed(2)}, ${style.color} on ${background}`);
    }
    return 1;
  };

  let looked = 0;
  for (const element of document.querySelectorAll('body, body *')) {
    if (element.closest('tr')?.sectionRowIndex > 9 || !element.checkVisibility()) {
      continue;
    }
    const own = [...element.childNodes].filter(({nodeType}) => nodeType === Node.TEXT_NODE);
    const background = backgroundOf(element);
    looked += look(own.map(({data}) => data).join(''), getComputedStyle(element), background);
    for (const part of ['::before', '::after']) {
      const style = getComputedStyle(element, part);
      const behind = background && over(parse(style.backgroundColor), background);
      looked += look(/^"(.*?)"/.exec(style.content)?.[1] ?? '', style, behind);
    }
  }
  return {looked, faint: [...found.values()]};
}
