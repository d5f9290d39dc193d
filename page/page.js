'use strict';

const $ = (id) => document.getElementById(id);
const data = JSON.parse($('data').textContent);
const operations = new Map(data.operations.map((each) => [each.name, each]));
const module = new WebAssembly.Module(Uint8Array.from(atob(data.wasm), (c) => c.charCodeAt(0)));

const hex = (value, size) => value.toString(16).padStart(2 * size, '0');
const escaped = (text) => String(text).replace(/[&<>"]/g, (c) => `&#${c.charCodeAt(0)};`);
const marked = (text) => escaped(text).replace(/`([^`]*)`/g, '<code>$1</code>');
const numbers = (from, to) => Array.from({length: Math.max(0, to - from)}, (_, i) => from + i);
const isPrintable = (unit) => unit > 31 && unit < 127;

// ---- A call: the console's parser and table, and the library, in a memory of their own ----

const paths = new Map();  // by the stack at a hook

// The calls that led to the access whose hook runs, outermost first, each with its name and source line.
function currentPath() {
  const {stack} = new Error();
  if (!paths.has(stack)) {
    const offsets = [...stack.matchAll(/wasm-function\[\d+\]:(0x[0-9a-f]+)/g)].map(([, offset]) => Number(offset));
    const frames = offsets.flatMap((offset) => data.sites[offset] || []).reverse();
    // What only forwards to an operation of the same name is no step of its own.
    paths.set(stack, frames.filter(({name}, i) => name !== frames[i + 1]?.name));
  }
  return paths.get(stack);
}

function makeCall(typed, rooms = {}) {
  const hooks = {};
  let access = () => {};
  for (const {name} of WebAssembly.Module.imports(module)) {
    const [, kind, size] = /(load|store|pc)(\d*)$/.exec(name);
    hooks[name] = kind === 'pc' ? () => {} : (address) => access(kind, address >>> 0, Number(size));
  }
  const {memory, line, read, run} = new WebAssembly.Instance(module, {env: hooks}).exports;
  const bytes = new Uint8Array(memory.buffer), view = new DataView(memory.buffer);
  const peek = ({base, size}, index) => view[`getUint${8 * size}`](base + size * index, true);
  const ascii = typed.replaceAll('\t', ' ').replace(/[^\0-\x7f]/g, (c) => '\\u' + hex(c.charCodeAt(0), 2));
  [...ascii.slice(0, 199)].forEach((c, i) => bytes[line.value + i] = c.charCodeAt(0));
  const told = read(), end = bytes.indexOf(0, told);
  const [message, json] = String.fromCharCode(...bytes.subarray(told, end)).split(/\n(?=\{)/);
  const call = {line: ascii, message: message.slice(2), steps: [], buffers: [], fault: null, ...JSON.parse(json)};
  if (ascii.length > 199) Object.assign(call, {verdict: 0, message: 'the line is longer than 199 characters'});
  for (const each of call.arguments) {
    each.isTyped = each.isText && each.isGiven && peek(each, each.length) === 0;  // and not named for what is provided
    each.text = numbers(0, each.length).map((i) => peek(each, i));
  }
  if (!call.verdict) return call;

  call.arguments.forEach((argument, i) => {
    const {name, size, isNull, owner, isTyped, length, most} = argument;
    if (!size || isNull || owner !== i) return;
    // A forbidden access shows where it happens: just after the string, and not in the markers that follow it.
    const room = isTyped && call.verdict === 1 ? length + 1 : most;
    const aliases = call.arguments.filter((each) => each !== argument && each.size && !each.isNull && each.owner === i)
      .map((each) => `${each.name} = ${name}${each.offset ? `+${each.offset}` : ''}`);
    call.buffers.push({...argument, argument, aliases, known: isTyped ? length + 1 : Number(most === 1),
      room: name in rooms && most > 1 ? Math.min(rooms[name], most) : room});
  });
  for (const buffer of call.buffers) buffer.units = numbers(0, buffer.room).map((i) => peek(buffer, i));
  // From the highest address down: what an argument points to, with all that lies above it up to the next; then what
  // is the operation's own, which begins where its lowest access will have been.
  const own = (name, known) => ({name, known, isOwn: true, base: Infinity, room: Infinity, aliases: ['no argument']});
  const nothing = {...call.arguments.find(({isNull}) => isNull), size: 1, base: 0, room: 0, known: 0, aliases: []};
  const regions = [...call.buffers.map((buffer) => [buffer.base, buffer]), [65536, own('constant', Infinity)],
    [1024, own('stack', 0)], [0, nothing]].sort((a, b) => b[0] - a[0]);

  let stored = null;  // A hook runs before its access: the value is there at the next.
  const settle = () => {
    if (stored) stored.value = peek(stored.buffer, stored.index);
    stored = null;
  };
  const overwrites = ({buffer, index}) => call.arguments.some((each) => each.isText && !each.isBuffer && !each.isNull &&
    call.arguments[each.owner] === buffer.argument && index >= each.offset && index <= buffer.length);
  access = (kind, address, size) => {
    settle();
    const buffer = regions.find(([start]) => start <= address)[1];
    if (buffer.isOwn) Object.assign(buffer, {base: Math.min(buffer.base, address), size: buffer.size ?? size});
    const step = {kind, buffer, path: currentPath(), get index() { return (address - buffer.base) / buffer.size; }};
    const isOverlap = kind === 'store' && call.verdict === 1 && overwrites(step);
    call.steps.push(step);
    if (!call.buffers.includes(buffer)) call.buffers.push(buffer);
    if (step.index >= buffer.room || isOverlap) {
      throw call.fault = {step, reason: isOverlap ? 'overlap' : buffer === nothing ? 'null' : kind};
    }
    if (kind === 'load') step.value = peek(buffer, step.index);
    else stored = step;
  };
  try {
    const [kind, number, address] = new Int32Array(memory.buffer, run(), 3);
    settle();
    call.result = ['nothing', number, place(call, address)][kind];
  } catch (fault) {
    if (fault !== call.fault) throw fault;
  }
  for (const buffer of call.buffers) {
    buffer.used = call.steps.reduce((used, step) => step.buffer === buffer ? Math.max(used, step.index + 1) : used, 0);
    if (buffer.isOwn) buffer.room = buffer.used;
    buffer.units ??= numbers(0, buffer.room).map((i) => peek(buffer, i));
  }
  return call;
}

function place({buffers}, address) {
  const isIn = ({isText, base, size, most}) => isText && address >= base && address < base + size * most;
  const {name, base, size} = buffers.find(isIn) || {};
  return !address ? 'null' : name ? `${name}+${(address - base) / size}` : 'a constant empty string';
}

// ---- What a contract says ----

const sentences = (text) => text.split(/(?<=\.)\n/).map((paragraph) =>
  paragraph.replace(/\s+/g, ' ').trim().split(/(?<=[.:]) (?=[A-Z0-9`-])/)).filter(([first]) => first);

// The sentence that forbids the last access: the first that fits a pattern, in the operation's contract before others.
function forbidding({name, fault: {reason, step}, message, arguments: all}) {
  const {contract, family} = operations.get(name), size = all.find((each) => each.name === 'size')?.number;
  const patterns = /cursor/.test(message) ? [/not beyond it/] : {
    null: [/must not be null/],
    overlap: [/must not overlap/],
    load: [/exactly `count`/, ...step.buffer.isBuffer ? [/destination is a terminated/] : [], /must be terminated/],
    store: [...size > step.buffer.room ? [/must hold `size`/, /whole destination/, /how many units a destination/] : [],
      /must (hold|have)/, /whole destination|exactly `count`/],
  }[reason];
  const known = [contract, data.families[family], ...data.conventions].flatMap(sentences).flat();
  return patterns.flatMap((pattern) => known.filter((sentence) => pattern.test(sentence)))[0];
}

// ---- What is shown ----

let typed, call, rooms, now = 0, depth = -1, chosen = null, timer;

const inputs = () => [...$('fields').querySelectorAll('input')];
const address = (text) => '#' + encodeURI(text);
const withRooms = (line, rooms) => [line, ...Object.entries(rooms).map(([name, room], i) =>
  `${i ? '' : '| '}${name}[${room}]`)].join(' ');

// Replace what has changed, so that the rest keeps its place, and what has the focus keeps it.
function patch(list, items) {
  const old = list.items, focus = document.activeElement.id;
  if (old?.length !== items.length) list.innerHTML = items.join('');
  else items.forEach((item, i) => { if (item !== old[i]) list.children[i].outerHTML = item; });
  list.items = items;
  if (focus && document.activeElement.id !== focus) $(focus)?.focus({preventScroll: true});
}

function glyph(unit, {size, most}) {
  if (size === 4) return most > 1 ? place(call, unit) : unit;
  if (unit < 33) return {0: '\\0', 32: '\u2423'}[unit] || '\u00b7';
  const text = String.fromCharCode(unit);
  return isPrintable(unit) || (size === 2 && /[\p{L}\p{N}\p{P}\p{S}]/u.test(text)) ? text : '\u00b7';
}

const spoken = (unit, buffer) => buffer.size === 4 ? glyph(unit, buffer) :
  `${isPrintable(unit) ? `'${String.fromCharCode(unit)}' ` : ''}0x${hex(unit, buffer.size)}`;

// An argument's value as the console takes it.
function valueOf(i) {
  const {name, isTyped, isGiven, isNull, number, owner, offset, text, most} = typed.arguments[i];
  const quoted = (unit) => isPrintable(unit) ? (unit === 34 || unit === 92 ? '\\' : '') + String.fromCharCode(unit) :
    unit > 255 ? '\\u' + hex(unit, 2) : '\\x' + hex(unit, 1);
  if (isNull) return 'null';
  if (owner !== i) return typed.arguments[owner].name + (offset ? `+${offset}` : '');
  if (isTyped) return `"${text.map(quoted).join('')}"`;
  return !isGiven || most > 1 ? '' : name === 'character' && isPrintable(number) ? `'${quoted(number)}'` : number;
}

// The fields as a line. A text stands before what names it; what may be left out, or leaves the order, says its name.
function lineOf(fields, isWide = typed.isWide) {
  const isAlias = (field) => fields.some((each) => each.name === field.value.split('+')[0]);
  const used = fields.filter((field) => field.value || field.required);
  const words = [...used.filter((field) => !isAlias(field)), ...used.filter(isAlias)].map((field, i) =>
    (field === used[i] && field.required && field.value ? '' : `${field.name}=`) + field.value);
  return [...isWide && operations.get(typed.name).links[1] ? ['wide'] : [], typed.name, ...words].join(' ');
}

function show(text, origin) {
  const [, line, bounds = ''] = /^(.*?)(?: \| ((?:\w+\[\d+\] ?)+))?$/s.exec(text), before = typed;
  rooms = Object.fromEntries([...bounds.matchAll(/(\w+)\[(\d+)\]/g)].map(([, name, room]) => [name, Number(room)]));
  const latest = makeCall(line, rooms);
  if (latest.name) typed = latest;
  // A line that is no call yet leaves the last call in sight, unless it is another operation's.
  if (latest.verdict || typed.name !== call?.name) call = typed;
  if (before?.name !== typed.name || before.isWide !== typed.isWide) showOperation();
  if (origin !== 'fields' && latest.verdict) inputs().forEach((field, i) => field.value = valueOf(i));
  if (origin !== 'line') $('line').value = text;
  if (origin !== 'address') history.replaceState(null, '', address(text));
  [...$('width').children].forEach((link, i) => link.href = address(withRooms(lineOf(inputs(), i), rooms)));
  document.body.classList.toggle('stale', !latest.verdict);
  showResult(latest);
  if (!latest.verdict && call !== typed) return;
  $('slider').max = call.steps.length;
  showContract();
  showPlot();
  go(Infinity);
  setTimeout(showTry);
}

function showOperation() {
  const {name, isWide, parameters: listed} = typed, {links, cost} = operations.get(name);
  const {link, parameters} = links[links[1] ? isWide : 0];
  [depth, chosen] = [-1, null];
  document.title = `${name} \u2013 Quvex, unit by unit`;
  $('name').textContent = name;
  $('link').textContent = link;
  $('width').hidden = !links[1];
  [...$('width').children].forEach((link, i) => link.ariaCurrent = isWide === i ? 'true' : null);
  $('fields').innerHTML = typed.arguments.map(({name, isText, most}, i) => {
    const isOptional = listed.includes(`[${name}]`), type = parameters[i][0].replaceAll('quvex_', '');
    const more = isOptional ? `placeholder="${most === 1 ? '0' : 'provided'}"` : 'required';
    return `<label><span>${name} <small>${type}</small></span>
      <input name="${name}" size="${isText ? 16 : 11}" autocomplete="off" spellcheck="false" ${more}></label>`;
  }).join('');
  for (const item of $('list').querySelectorAll('a')) item.ariaCurrent = item.textContent === name ? 'page' : null;
  $('list').querySelector('[aria-current]').scrollIntoView({block: 'nearest'});
  const rows = Object.entries(cost[isWide && links[1] ? 'wide' : 'narrow']).map((row) => row.flat().join('<td>'));
  $('cost').innerHTML = ['<td><th scope="col">for size<th scope="col">for speed', ...rows.map((row) =>
    `<th scope="row">${row}`)].map((row) => `<tr>${row}`).join('');
}

function showResult({verdict, message, fault, result, steps}) {
  const loads = steps.filter(({kind}) => kind === 'load').length, {buffer, index, kind} = fault?.step || {};
  const why = {null: 'is an access through null', overlap: 'writes what is to be read'}[fault?.reason] ||
    `is beyond the room for ${buffer?.room}`;
  const what = fault ? `<code>${kind} ${buffer.name}[${index}]</code> ${why}. <q>${marked(forbidding(call))}</q>` :
    `${escaped(message)} (no harm done this time)`;
  $('result').className = ['refused', 'fault', fault ? 'fault' : ''][verdict];
  $('result').innerHTML = !verdict ? `<b>?</b> ${escaped(message)}` :
    verdict === 1 || fault ? `<b>The caller\u2019s fault:</b> ${what}` :
    `returns <b>${result}</b> <small>loads: ${loads}, stores: ${steps.length - loads}</small>`;
}

// The units of each buffer after so many accesses, and which were read and written until then.
function showMemory(current) {
  patch($('buffers'), call.buffers.map((buffer, b) => {
    const {name, aliases, size, most, room, known, used, isOwn} = buffer, units = [...buffer.units];
    const touched = {load: new Set(), store: new Set()};
    for (const {kind, index, value} of call.steps.slice(0, now).filter((step) => step.buffer === buffer)) {
      touched[kind].add(index);
      if (kind === 'store' && value !== undefined) units[index] = value;
    }
    const inside = Math.min(room, Math.max(isOwn ? 0 : known, used) + (most > 1 ? 3 : 0));
    const outside = used > room ? [...numbers(room, Math.min(room + 4, used - 1)), used - 1] : [];
    const cells = [...numbers(0, inside), ...outside].map((index) => {
      const read = touched.load.has(index), written = touched.store.has(index), isOutside = index >= room;
      const never = !isOutside && index >= known && !read && !written, isBlank = isOutside || never;
      const all = {outside: isOutside, never, read, written}, is = Object.keys(all).filter((what) => all[what]);
      const label = `${name}[${index}]: ${[...isBlank ? [] : [spoken(units[index], buffer)], ...is].join(', ')}`;
      const isNow = current?.buffer === buffer && current.index === index;
      return `<button id="unit-${b}-${index}" class="cell ${is.join(' ')}" tabindex="${index && -1}"
        aria-label="${escaped(label)}" ${isNow ? 'aria-current="step"' : ''}>
        <i>${index}</i><b>${isBlank ? '' : escaped(glyph(units[index], buffer))}</b><small>${
        isOutside || size === 4 || (isOwn && never) ? '' : hex(units[index], size)}</small></button>`;
    });
    const {[name]: _, ...others} = rooms, fewer = {...rooms, [name]: Math.min(room, used) - 1};
    const link = (rooms, text) => ` <a href="${escaped(address(withRooms(typed.line, rooms)))}">${text}</a>`;
    const links = (name in rooms ? link(others, 'room enough') : '') + (used && room ? link(fewer, 'one too few') : '');
    const counts = [...aliases, `${touched.load.size} read`, `${touched.store.size} written`].join(', ');
    return `<section class="buffer" aria-label="${name}"><h3>${name} <small>${counts}</small>
      ${most > 1 ? `<small class="room">room for ${room} ${links}</small>` : ''}</h3>
      <div class="cells ${size === 4 && most > 1 ? 'broad' : ''}">${cells.join('')}
      <small>${room > inside && !outside.length ? `+${room - inside}` : ''}</small></div></section>`;
  }));
}

function showStep() {
  const step = call.steps[now - 1], {kind, buffer, index, value} = step || {}, count = `${now} / ${call.steps.length}`;
  const isFault = step && step === call.fault?.step, then = kind === 'load' ? '\u2192' : '\u2190';
  const does = !call.steps.length ? 'no memory is touched' : !step ? 'before the first access' :
    `${kind} ${buffer.name}[${index}] ${isFault ? 'leaves the contract' : `${then} ${spoken(value, buffer)}`}`;
  $('step').innerHTML = `<b>${count}</b> ${escaped(does)}`;
  $('step').className = isFault ? 'fault' : '';
  $('slider').value = now;
  $('slider').ariaValueText = `${count}: ${does}`;
  $('plot').querySelector('.time')?.setAttribute('transform', `translate(${timeAt(now)})`);
  showMemory(step);
  showSource(step);
}

// The plot: time to the right, in line with the slider, and a band for each buffer.
const margin = 8;  // half of the slider's thumb
const timeAt = (count) => margin + count / Math.max(1, call.steps.length) * ($('plot').clientWidth - 2 * margin);
const isChosen = ({path}) => path.some(({key}) => key === chosen);

function showPlot() {
  const {fault} = call, width = $('plot').clientWidth, long = Math.max(1.5, timeAt(1) - timeAt(0) - 1).toFixed(1);
  let top = 0, bands = '';
  for (const buffer of call.buffers.filter(({used}) => used)) {
    const steps = call.steps.map((step, i) => [step, i]).filter(([step]) => step.buffer === buffer);
    const lowest = Math.min(...steps.map(([{index}]) => index)), units = buffer.used - lowest;
    const unit = Math.max(2, Math.min(8, Math.floor(64 / units)));
    const path = (name, fits) => `<path class="${name}" d="${steps.filter(([step]) => fits(step)).map(([{index}, i]) =>
      `M${timeAt(i).toFixed(1)} ${top + 18 + unit * (index - lowest)}h${long}v${unit}h-${long}z`).join('')}"/>`;
    bands += `<text x="${margin}" y="${top + 13}">${buffer.name}</text><rect x="${margin}" y="${top + 18}"
      width="${Math.max(0, width - 2 * margin)}" height="${unit * units}"/>${path('read', ({kind}) => kind === 'load')}
      ${path('written', ({kind}) => kind === 'store')}${path('fault', (step) => step === fault?.step)}
      ${path('chosen', isChosen)}`;
    top += unit * units + 22;
  }
  $('plot').innerHTML = bands && `<svg width="${width}" height="${top}" role="img" aria-label="The ${call.steps.length}
    accesses over time, a band for each buffer">${bands}
    <path class="time" transform="translate(${timeAt(now)})" d="M0 0V${top}"/></svg>`;
  $('plot').plotted = width;
}

// The line that makes the access, in the innermost call or the one that is chosen, and how many each line makes.
function showSource(step) {
  const path = step?.path || [], at = depth in path ? depth : path.length - 1, count = {};
  const {link} = operations.get(call.name).links[0];
  const home = Object.keys(data.sources).find((name) => /cpp$/.test(name) && data.sources[name].includes(`${link}(`));
  const [file, number] = path[at]?.key.split(':') || [home, 0], lines = data.sources[file].trimEnd().split('\n');
  for (const {path} of call.steps) for (const {key} of path) count[key] = (count[key] || 0) + 1;
  $('file').textContent = step && !path.length ? 'this browser does not tell the line' : file;
  $('path').innerHTML = path.map(({name, key}, i) => `<button id="path-${i}" data-depth="${i}"
    aria-pressed="${i === at}">${name} <small>${key.split(':')[1]}</small></button>`).join(' \u203a ');
  patch($('source'), lines.map((text, i) => {
    const key = `${file}:${i + 1}`, tag = count[key] ? 'button' : 'div';
    const more = count[key] ? `id="${key}" data-key="${key}" aria-pressed="${key === chosen}"` : '';
    return `<${tag} class="row ${i + 1 === Number(number) ? 'now' : ''}" ${more}><small>${i + 1}</small>
      <code>${escaped(text)}</code><small>${count[key] ? `\u00d7${count[key]}` : ''}</small></${tag}>`;
  }));
  const list = $('source'), line = number || 1 + lines.findIndex((text) => text.includes(`${link}(`));
  const top = list.children[Math.max(line - 1, 0)].offsetTop - list.scrollTop;
  if (top < 30 || top > list.clientHeight - 50) list.scrollTop += top - list.clientHeight / 3;
}

function showContract() {
  const {contract, family} = operations.get(call.name), general = data.families[family];
  const broken = call.fault && forbidding(call);
  const part = (title, text) => title + sentences(text).map((each) => `<p>${each.map((sentence) =>
    sentence === broken ? `<mark>${marked(sentence)}</mark>` : marked(sentence)).join(' ')}</p>`).join('');
  const rule = data.conventions.find((text) => sentences(text).flat().includes(broken));
  $('contract').innerHTML = part('', contract) + (general && part(`<h3>${family}</h3>`, general)) +
    (rule ? part('<h3>All operations</h3>', rule) : '') + `<details><summary>What holds for all operations</summary>${
    data.conventions.map((each) => part('', each)).join('')}</details>`;
}

function showTry() {
  const items = ['', '', ''];
  for (const line of operations.get(call.name).examples) {
    items[makeCall(line).verdict] += `<li><a href="${escaped(address(line))}">${escaped(line)}</a>`;
  }
  $('try').innerHTML = `<ul>${items[2]}</ul>` + (items[1] && `<h3>Outside the contract</h3><ul>${items[1]}</ul>`);
}

// ---- Mouse and keyboard ----

const stop = () => { timer = clearInterval(timer); $('play').ariaLabel = 'Play'; };
function go(count, isPlaying = false) {
  now = Math.max(0, Math.min(count, call.steps.length));
  if (!isPlaying || now === call.steps.length) stop();
  showStep();
}

// To the next access that fits, or the first.
function seek(fits) {
  const found = call.steps.flatMap((step, i) => fits(step) ? [i + 1] : []);
  go(found.find((at) => at > now) ?? found[0] ?? now);
}

const choose = (key) => { chosen = key; showPlot(); seek(isChosen); };
$('play').onclick = () => {
  if (timer || !call.steps.length) return stop();
  if (now === call.steps.length) go(0);
  timer = setInterval(() => go(now + 1, true), Math.max(30, Math.min(300, 12000 / call.steps.length)));
  $('play').ariaLabel = 'Pause';
};
const acts = {first: -Infinity, back: -1, forth: 1, last: Infinity};
for (const id in acts) $(id).onclick = () => go(now + acts[id]);
$('slider').oninput = () => go(Number($('slider').value));
$('plot').onclick = ({offsetX}) => go(Math.ceil((offsetX - margin) / (timeAt(1) - timeAt(0))));
$('line').oninput = () => show($('line').value, 'line');
$('fields').oninput = () => show(withRooms(lineOf(inputs()), rooms), 'fields');
$('take').onclick = () => { navigator.clipboard?.writeText(typed.line); $('line').select(); };
$('menu').onclick = () => { $('menu').ariaExpanded = String(document.body.classList.toggle('menu')); };

addEventListener('click', ({target}) => {
  const {id, dataset: {key, depth: at}} = target.closest('button') || document.body;
  const [, b, index] = /^unit-(\d+)-(\d+)$/.exec(id) || [];
  if (b) seek((step) => step.buffer === call.buffers[b] && step.index === Number(index));
  if (key) choose(key);
  if (at) depth = Number(at), showStep();
});

$('filter').oninput = () => {
  const wanted = $('filter').value.trim().toLowerCase();
  for (const item of $('list').querySelectorAll('li')) item.hidden = !item.dataset.words.includes(wanted);
  for (const family of $('list').children) family.hidden = !family.querySelector('li:not([hidden])');
};
$('filter').onkeydown = ({key}) => { if (key === 'Enter') $('list').querySelector('li:not([hidden]) a')?.click(); };

const keys = {ArrowLeft: 'back', ArrowRight: 'forth', Home: 'first', End: 'last', ' ': 'play'};
addEventListener('keydown', (event) => {
  const {key, target, ctrlKey, altKey, metaKey} = event, isCell = target.classList.contains('cell');
  const beside = {ArrowLeft: 'previousElementSibling', ArrowRight: 'nextElementSibling'}[key];
  if (key === 'Escape') target.blur(), choose(null);
  if (ctrlKey || altKey || metaKey || target.tagName === 'INPUT' || (key === ' ' && target !== document.body)) return;
  if (isCell && beside) target[beside]?.focus();
  else if (key === '/') $('filter').focus();
  else if (keys[key]) $(keys[key]).click();
  else return;
  event.preventDefault();
});

function open() {
  document.body.classList.remove('menu');
  const text = decodeURIComponent(location.hash.slice(1).replace(/%(?![0-9a-f]{2})/gi, '%25'));
  show(operations.get(text || 'replace')?.examples[0] || text, 'address');
}

$('list').innerHTML = Object.keys(data.families).map((title) => `<section><h3>${title}</h3><ul>${
  data.operations.filter(({family}) => family === title).map(({name, examples, summary, links}) =>
    `<li data-words="${escaped([name, summary, ...links.map(({link}) => link)].join(' ').toLowerCase())}">
    <a href="${escaped(address(examples[0]))}">${name}</a>`).join('')}</ul></section>`).join('');
addEventListener('hashchange', open);
open();
new ResizeObserver(([{contentRect: {width}}]) => { if (width !== $('plot').plotted) showPlot(); }).observe($('plot'));
