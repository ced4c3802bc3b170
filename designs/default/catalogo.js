// The catalogue page: finds, sorts and pages what the data list holds. The choices stand in the
// address behind #, so that they can be linked to and the browser's way back works:
// q words, k category, z zone code, f7 and f8 option fields, o order, p page.
(function () {
  'use strict';
  const perPage = 12;
  const form = document.getElementById('filtros');
  const list = document.getElementById('productos');
  const count = document.getElementById('cuenta');
  const pages = document.getElementById('paginas');
  const fields = ['q', 'z', 'f7', 'f8', 'o'];

  // Texts come as they would stand in a page, with character references; apostrophes as one without
  // its semicolon, or behind a backslash.
  const decoder = document.createElement('textarea');
  function decode(text) {
    const plain = text.replace(/&#39;?|\\'/g, '\'');
    if (!plain.includes('&')) return plain;
    decoder.innerHTML = plain;
    return decoder.value;
  }

  // A column as an array. One that some product lacks can't be told apart by product: it isn't used.
  const data = window.catalogue;
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
  const products = columns.id.map((id, i) => {
    const at = (name) => columns[name][i] || '';
    const product = {
      id,
      ref: at('ref'),
      title: decode(at('title')) || at('ref'),
      path: decode(at('category')) || '%%W.UNSORTED%%',
      zone: decode(at('zone')),
      z: at('zoneCode'),
      price: Number(at('price')) || 0,
      picture: at('picture'),
      f7: at('choice7'),
      f8: at('choice8')
    };
    product.words = fold([product.title, product.ref, product.path, product.zone].join(' '));
    return product;
  });

  function fold(text) {
    return text.normalize('NFD').replace(/[\u0300-\u036f]/g, '').toLowerCase();
  }

  // Categories tell how many products they hold; those without any are not offered.
  const links = [...document.querySelectorAll('.browse .categories a')];
  for (const link of links) {
    const found = products.filter((product) => within(product, link.dataset.path)).length;
    link.parentElement.hidden = found === 0;
    link.append(' ', element('span', { class: 'count' }, String(found)));
  }

  function within(product, path) {
    return product.path === path || product.path.startsWith(path + '/');
  }

  function address(state) {
    const given = Object.entries(state).filter(([, value]) => value !== '' && value !== 1);
    return '#' + new URLSearchParams(given).toString();
  }

  function readState() {
    const given = new URLSearchParams(location.hash.slice(1));
    const state = { k: given.get('k') || '', p: Math.max(1, parseInt(given.get('p'), 10) || 1) };
    for (const name of fields) state[name] = given.get(name) || '';
    return state;
  }

  const orders = {
    up: (a, b) => (a.price || Infinity) - (b.price || Infinity),
    down: (a, b) => b.price - a.price,
    name: (a, b) => a.title.localeCompare(b.title, document.documentElement.lang)
  };

  function select(state) {
    const words = fold(state.q).split(/\s+/).filter(Boolean);
    const chosen = products.filter(
      (product) =>
        words.every((word) => product.words.includes(word)) &&
        (state.k === '' || within(product, state.k)) &&
        ['z', 'f7', 'f8'].every((name) => state[name] === '' || product[name] === state[name])
    );
    return orders[state.o] ? chosen.sort(orders[state.o]) : chosen;
  }

  function element(tag, attributes, ...content) {
    const made = document.createElement(tag);
    for (const [name, value] of Object.entries(attributes)) made.setAttribute(name, value);
    made.append(...content);
    return made;
  }

  const money = new Intl.NumberFormat(document.documentElement.lang, {
    style: 'currency', currency: 'EUR', useGrouping: 'always',
    minimumFractionDigits: 2, maximumFractionDigits: 2, trailingZeroDisplay: 'stripIfInteger'
  });

  function card(product) {
    const image = element('img', {
      src: 's' + product.picture + '.jpg',
      srcset: 's' + product.picture + '.jpg 400w, m' + product.picture + '.jpg 800w',
      sizes: '(min-width: 60em) 20rem, 46vw',
      width: 400, height: 300, alt: '', loading: 'lazy'
    });
    const price = product.price
      ? element('span', { class: 'amount' }, money.format(product.price))
      : element('span', { class: 'ask' }, %Q%%%W.ONREQUEST%%%Q%);
    return element('li', { class: 'card' },
      element('a', { href: 'ficha' + product.id + '%LID%.html' },
        image, element('h3', {}, product.title), element('p', { class: 'price' }, price)));
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
    for (const link of links) {
      link.hash = address({ ...state, k: link.dataset.path, p: 1 });
      if (link.dataset.path === state.k) link.setAttribute('aria-current', 'true');
      else link.removeAttribute('aria-current');
    }
    count.textContent = products.length === 0 ? %Q%%%W.EMPTY%%%Q%
      : chosen.length === 0 ? %Q%%%W.NONE%%%Q%
      : chosen.length === 1 ? %Q%%%W.ONE%%%Q% : chosen.length + %Q% %%W.MANY%%%Q%;
    list.replaceChildren(element('ul', { class: 'cards' },
      ...chosen.slice(first, first + perPage).map(card)));
    list.hidden = chosen.length === 0;
    showPages(state, last);
  }

  // Typing changes the address without filling the browser's way back with every letter.
  function apply() {
    const state = readState();
    const next = { k: state.k };
    for (const name of fields) next[name] = form.elements[name].value;
    history.replaceState(null, '', address(next));
    show();
  }

  // A choice of one is none.
  for (const name of ['z', 'f7', 'f8']) {
    const options = [...form.elements[name].options].slice(1);
    const offered = options.filter((option) => products.some((p) => p[name] === option.value));
    for (const option of options) if (!offered.includes(option)) option.remove();
    form.elements[name].parentElement.hidden = offered.length < 2;
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
  form.hidden = products.length === 0;
  show();
})();
