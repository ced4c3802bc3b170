// What makes the pages more comfortable; every page also works without it.
(function () {
  'use strict';

  // The menu tells where the visitor is.
  const here = location.pathname.split('/').pop() || 'index%LID%.html';
  for (const link of document.querySelectorAll('.menu a')) {
    const target = link.getAttribute('href');
    if (target === here || (here === 'index.html' && target === 'index%LID%.html')) {
      link.setAttribute('aria-current', 'page');
    }
  }

  // Telephone numbers can be dialled.
  for (const place of document.querySelectorAll('[data-tel]')) {
    const number = place.textContent.replace(/[^+\d]/g, '');
    if (number.length < 6) continue;
    const link = document.createElement('a');
    link.href = 'tel:' + number;
    link.append(...place.childNodes);
    place.append(link);
  }

  // Prices stand in the numerals of the machine that made the pages. They are shown in those of the
  // page's language, and machines read them without a separator but the decimal point.
  const language = document.documentElement.lang;
  for (const price of document.querySelectorAll('[itemprop=price], .amount')) {
    const text = price.textContent.replace(/[^\d.,]/g, '');
    if (text === '') continue;
    const decimals = /[.,](\d{2})$/.exec(text);
    const whole = (decimals ? text.slice(0, -3) : text).replace(/\D/g, '');
    const value = (whole || '0') + (decimals ? '.' + decimals[1] : '');
    if (price.hasAttribute('itemprop')) price.setAttribute('content', value);
    price.textContent = new Intl.NumberFormat(language, {
      minimumFractionDigits: decimals ? 2 : 0, useGrouping: 'always'
    }).format(value);
  }

  const print = document.querySelector('[data-print]');
  if (print) {
    print.hidden = false;
    print.addEventListener('click', () => window.print());
  }

  // The monthly instalment of a loan over what the savings leave to pay.
  const loan = document.querySelector('[data-loan]');
  const amount = document.querySelector('.deal [itemprop=price]');
  if (loan && amount && !document.querySelector('.deal .rent')) {
    const money = new Intl.NumberFormat(language,
      { style: 'currency', currency: 'EUR', maximumFractionDigits: 0, useGrouping: 'always' });
    const quote = () => {
      const [savings, interest, years] =
        [...loan.querySelectorAll('input')].map((input) => Number(input.value));
      const debt = Math.max(0, Number(amount.getAttribute('content')) - savings);
      const rate = interest / 1200;
      const months = years * 12;
      const monthly = rate > 0 ? debt * rate / (1 - Math.pow(1 + rate, -months)) : debt / months;
      loan.querySelector('output').textContent = isFinite(monthly) ? money.format(monthly) : '';
    };
    loan.addEventListener('input', quote);
    loan.hidden = false;
    quote();
  }

  // A small picture takes the place of the large one, which becomes a small one itself.
  const main = document.querySelector('.gallery figure a');
  const thumbs = document.querySelector('.gallery .thumbs');
  if (main && thumbs) {
    thumbs.addEventListener('click', (event) => {
      const small = event.target.closest('a');
      if (!small || event.ctrlKey || event.metaKey || event.shiftKey) return;
      event.preventDefault();
      const shown = main.firstElementChild;
      const chosen = small.querySelector('img');
      const from = shown.getAttribute('src').slice(1);
      const to = chosen.getAttribute('src').slice(1);
      shown.srcset = 's' + to + ' 480w, m' + to + ' 960w, g' + to + ' 1920w';
      shown.src = 'm' + to;
      chosen.src = 's' + from;
      [shown.alt, chosen.alt] = [chosen.alt, shown.alt];
      [main.href, small.href] = [small.href, main.href];
      main.parentElement.style.backgroundImage = 'url(b' + to + ')';
    });
  }
})();
