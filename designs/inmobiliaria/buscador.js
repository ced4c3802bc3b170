// The search page: finds, sorts and pages what the data list holds. The choices stand in the
// address behind #, so that they can be linked to and the browser's way back works: z zone code,
// t type, d and h lowest and highest price, r rooms, m size, x15 and the like must-haves, o order,
// p page. The form of the home page sends its choices behind ?.
(function () {
  'use strict';
  const perPage = 12;
  const form = document.getElementById('buscador');
  const list = document.getElementById('lista');
  const count = document.getElementById('cuenta');
  const pages = document.getElementById('paginas');
  const extras = ['x15', 'x16', 'x18', 'x19', 'x20'];
  const fields = ['z', 't', 'd', 'h', 'r', 'm', 'o'];
  const language = document.documentElement.lang;

  // Texts come as they would stand in a page, with character references; apostrophes as one without
  // its semicolon, or behind a backslash.
  const decoder = document.createElement('textarea');
  function decode(text) {
    const plain = text.replace(/&#39;?|\\'/g, '\'');
    if (!plain.includes('&')) return plain;
    decoder.innerHTML = plain;
    return decoder.value;
  }

  // A column as an array. One that some home lacks can't be told apart by home: it is not used.
  const data = window.homes;
  function column(name) {
    let entries = data[name];
    if (name === 'price') {
      entries = entries.split(',');
    } else if (typeof entries === 'string') {
      entries = entries.trim().replace(/,$/, '').slice(1, -1).split('\',\'');
    }
    return entries.length === data.id.length ? entries : [];
  }
  const columns = {};
  for (const name of Object.keys(data)) columns[name] = column(name);
  // Numbers as people type them, 1.200 or 85,5: a point or comma before three digits groups them.
  const number = (text) => parseFloat(
    String(text || '').replace(/[.,\s](?=\d{3}(\D|$))/g, '').replace(',', '.')) || 0;

  const homes = columns.id.map((id, i) => {
    const at = (name) => columns[name][i] || '';
    const home = {
      id,
      title: decode(at('title')) || at('ref'),
      zone: decode(at('zone')),
      z: at('zoneCode'),
      t: at('type'),
      price: Number(at('price')) || 0,
      picture: at('picture'),
      size: number(at('size')),
      rooms: number(at('singles')) + number(at('doubles')),
      baths: number(at('baths'))
    };
    for (const name of extras) home[name] = at(name) === '%SI%';
    return home;
  });

  function address(state) {
    const given = Object.entries(state).filter(([, value]) => value && value !== 1);
    return '#' + new URLSearchParams(given).toString();
  }

  function readState() {
    const given = new URLSearchParams(location.hash.slice(1));
    const state = { p: Math.max(1, parseInt(given.get('p'), 10) || 1) };
    for (const name of fields) state[name] = given.get(name) || '';
    for (const name of extras) state[name] = given.get(name) ? 'on' : '';
    return state;
  }

  // Homes without a price or a size stand last, whichever way the list is ordered.
  const orders = {
    up: (a, b) => (a.price || Infinity) - (b.price || Infinity) || 0,
    down: (a, b) => b.price - a.price,
    size: (a, b) => b.size - a.size
  };

  function select(state) {
    const chosen = homes.filter((home) =>
      (state.z === '' || home.z === state.z) &&
      (state.t === '' || home.t === state.t) &&
      (state.d === '' || home.price >= Number(state.d)) &&
      (state.h === '' || (home.price > 0 && home.price <= Number(state.h))) &&
      (state.r === '' || home.rooms >= Number(state.r)) &&
      (state.m === '' || home.size >= Number(state.m)) &&
      extras.every((name) => !state[name] || home[name]));
    return orders[state.o] ? chosen.sort(orders[state.o]) : chosen;
  }

  function element(tag, attributes, ...content) {
    const made = document.createElement(tag);
    for (const [name, value] of Object.entries(attributes)) made.setAttribute(name, value);
    made.append(...content);
    return made;
  }

  const money = new Intl.NumberFormat(language, {
    style: 'currency', currency: 'EUR', maximumFractionDigits: 0, useGrouping: 'always'
  });
  const decimal = new Intl.NumberFormat(language, { useGrouping: 'always' });
  const types = new Map([...form.elements.t.options].map((option) => [option.value, option.text]));

  function card(home) {
    const sizes = [
      [home.size, 'm\u00b2'],
      [home.rooms, home.rooms === 1 ? %Q%%%W.BEDROOM%%%Q% : %Q%%%W.BEDROOMS%%%Q%],
      [home.baths, home.baths === 1 ? %Q%%%W.BATH%%%Q% : %Q%%%W.BATHS%%%Q%]
    ].filter(([value]) => value > 0)
      .map(([value, unit]) => element('span', {}, decimal.format(value) + ' ' + unit));
    const type = home.t === '' ? '' : types.get(home.t) || '';
    const unit = type === %Q%%%W.RENT%%%Q% ? %Q%%%W.PERMONTH%%%Q% : '';
    return element('li', { class: 'card' }, element('a', { href: 'inm' + home.id + '%LID%.html' },
      element('img', {
        src: 's' + home.picture + '.jpg',
        srcset: 's' + home.picture + '.jpg 480w, m' + home.picture + '.jpg 960w',
        sizes: '(min-width: 60em) 24rem, 100vw', width: 480, height: 360, alt: '', loading: 'lazy'
      }),
      element('span', { class: 'place' }, [type, home.zone].filter(Boolean).join(', ')),
      element('h3', {}, home.title),
      element('p', { class: 'price' },
        home.price ? money.format(home.price) + unit
          : element('span', { class: 'ask' }, %Q%%%W.ONREQUEST%%%Q%)),
      element('p', { class: 'sizes' }, ...sizes)));
  }

  function showPages(state, last) {
    const step = (page, text, name) => {
      const link = element('a', { href: address({ ...state, p: page }) }, text);
      if (name) link.rel = name;
      if (!name && page === state.p) link.setAttribute('aria-current', 'page');
      return link;
    };
    const shown = [];
    if (state.p > 1) shown.push(step(state.p - 1, %Q%%%W.PREVIOUS%%%Q%, 'prev'));
    for (let page = 1; page <= last; page++) {
      const near = Math.abs(page - state.p) <= 2 || page === 1 || page === last;
      if (near) shown.push(step(page, String(page)));
      else if (Math.abs(page - state.p) === 3) shown.push(element('span', {}, '\u2026'));
    }
    if (state.p < last) shown.push(step(state.p + 1, %Q%%%W.NEXT%%%Q%, 'next'));
    pages.replaceChildren(...shown);
    pages.hidden = last < 2;
  }

  function show() {
    const state = readState();
    const chosen = select(state);
    const last = Math.max(1, Math.ceil(chosen.length / perPage));
    state.p = Math.min(state.p, last);
    const first = (state.p - 1) * perPage;
    for (const name of fields) form.elements[name].value = state[name];
    for (const name of extras) form.elements[name].checked = state[name] !== '';
    count.textContent = homes.length === 0 ? %Q%%%W.EMPTY%%%Q%
      : chosen.length === 0 ? %Q%%%W.NONE%%%Q%
      : chosen.length === 1 ? %Q%%%W.ONE%%%Q% : chosen.length + %Q% %%W.MANY%%%Q%;
    list.replaceChildren(element('ul', { class: 'cards' },
      ...chosen.slice(first, first + perPage).map(card)));
    list.hidden = chosen.length === 0;
    showPages(state, last);
  }

  // Typing changes the address without filling the browser's way back with every digit.
  function apply() {
    const next = {};
    for (const name of fields) next[name] = form.elements[name].value;
    for (const name of extras) next[name] = form.elements[name].checked ? 'on' : '';
    history.replaceState(null, '', address(next));
    show();
  }

  // A choice that no home or every home meets is none.
  for (const name of ['z', 't']) {
    const options = [...form.elements[name].options].slice(1);
    const offered = options.filter((option) => homes.some((home) => home[name] === option.value));
    for (const option of options) if (!offered.includes(option)) option.remove();
    form.elements[name].parentElement.hidden = offered.length < 2;
  }
  form.elements.r.parentElement.hidden = homes.every((home) => home.rooms === 0);
  form.elements.m.parentElement.hidden = homes.every((home) => home.size === 0);
  for (const name of extras) {
    const found = homes.filter((home) => home[name]).length;
    form.elements[name].parentElement.hidden = found === 0 || found === homes.length;
  }

  if (location.search !== '') {
    const sent = new URLSearchParams(location.search);
    history.replaceState(null, '', location.pathname + address(Object.fromEntries(sent)));
  }
  form.addEventListener('input', apply);
  form.addEventListener('submit', (event) => {
    event.preventDefault();
    document.getElementById('resultado').focus();
  });
  form.addEventListener('reset', () => {
    history.replaceState(null, '', address({ o: readState().o }));
    setTimeout(show);
  });
  pages.addEventListener('click', (event) => {
    if (event.target.closest('a')) document.getElementById('resultado').focus();
  });
  window.addEventListener('hashchange', show);
  form.hidden = homes.length === 0;
  show();
})();
