'use strict';

const $ = (id) => document.getElementById(id);
const data = JSON.parse($('data').textContent);
const operations = new Map(data.operations.map((each) => [each.name, each]));
const module = new WebAssembly.Module(Uint8Array.from(atob(data.wasm), (c) => c.charCodeAt(0)));
const mostTyped = 199;

// ---- A call: the console's parser and table, and the library, in a memory of their own ----

const paths = new Map();  // by the stack at a hook

// The path of source lines, outermost first, of the access whose hook runs.
function currentPath() {
  const stack = new Error().stack;
  if (!paths.has(stack)) {
    const offsets = [...stack.matchAll(/wasm-function\[\d+\]:0x([0-9a-f]+)/g)].map(([, digits]) => parseInt(digits, 16));
    const frames = offsets.flatMap((offset) => data.sites[offset] || []).reverse();
    // What only forwards to an operation of the same name is no step of its own.
    paths.set(stack, frames.filter((frame, i) => frame[2] !== frames[i + 1]?.[2])
      .map(([file, line, name]) => ({file, line, name, key: `${file}:${line}`})));
  }
  return paths.get(stack);
}

function makeCall(typed, rooms = {}) {
  const environment = {};
  let access = () => {};
  for (const {name} of WebAssembly.Module.imports(module)) {
    const [, kind, bytes] = /(load|store|pc)(\d*)$/.exec(name);
    environment[name] = kind === 'pc' ? () => {} : (address) => access(kind, address >>> 0, Number(bytes));
  }
  const {memory, line, read, run} = new WebAssembly.Instance(module, {env: environment}).exports;
  const bytes = new Uint8Array(memory.buffer), view = new DataView(memory.buffer);
  const peek = ({base, size}, index) => size === 1 ? bytes[base + index] :
    size === 2 ? view.getUint16(base + 2 * index, true) : view.getUint32(base + 4 * index, true);

  typed = typed.replaceAll('\t', ' ').replace(/[^\0-\x7f]/g, (c) => '\\u' + hex(c.charCodeAt(0), 2));
  [...typed.slice(0, mostTyped)].forEach((c, i) => bytes[line.value + i] = c.charCodeAt(0));
  const told = read();
  const [message, json] = String.fromCharCode(...bytes.subarray(told, bytes.indexOf(0, told))).split(/\n(?=\{)/);
  const call = {line: typed, message: message.slice(2), steps: [], buffers: [], fault: null, ...JSON.parse(json)};
  if (typed.length > mostTyped) Object.assign(call, {verdict: 0, message: `the line is longer than ${mostTyped} characters`});
  for (const each of call.arguments) {
    each.isTyped = each.isText && each.isGiven && peek(each, each.length) === 0;  // and not named for what is provided
    each.text = Array.from({length: each.length}, (_, i) => peek(each, i));
  }
  if (!call.verdict) return call;

  // Memory from the highest address down: what each argument points to, with all that lies above it up to the next.
  call.arguments.forEach((argument, i) => {
    const {name, size, isNull, owner, isText, isTyped, length, most} = argument;
    if (!size || isNull || owner !== i) return;
    // What is forbidden shows where it happens: behind the string, and not in the markers after it.
    const room = name in rooms && most > 1 ? Math.min(rooms[name], most) : isTyped && call.verdict === 1 ? length + 1 : most;
    const aliases = call.arguments.filter((each) => each !== argument && each.isText && !each.isNull && each.owner === i)
      .map((each) => `${each.name} = ${name}${each.offset ? `+${each.offset}` : ''}`);
    call.buffers.push({...argument, argument, room, aliases, known: isTyped ? length + 1 : Number(most === 1)});
  });
  const own = (name) => ({name, isOwn: true, room: Infinity, known: 0, aliases: ['the operation\u2019s own']});
  const constant = own('constant'), stack = own('stack');
  const nothing = {name: call.arguments.find((each) => each.isNull)?.name, size: 1, base: 0, room: 0, known: 0, aliases: ['null']};
  const regions = [...call.buffers.map((buffer) => [buffer.base, buffer]), [65536, constant], [1024, stack], [0, nothing]]
    .sort((a, b) => b[0] - a[0]);
  for (const buffer of call.buffers) buffer.units = Array.from({length: buffer.room}, (_, i) => peek(buffer, i));

  let stored = null;  // a hook runs before its access: the value is there at the next
  const settle = () => {
    if (stored) stored.value = peek({...stored.buffer, base: stored.address}, 0);
    stored = null;
  };
  const overwrites = ({buffer, index}) => call.arguments.some((each) => each.isText && !each.isBuffer && !each.isNull &&
    call.arguments[each.owner] === buffer.argument && index >= each.offset && index <= buffer.length);
  access = (kind, address, size) => {
    settle();
    const buffer = regions.find(([start]) => start <= address)[1];
    if (buffer.isOwn) Object.assign(buffer, {base: Math.min(buffer.base ?? address, address), size: buffer.size ?? size});
    const step = {kind, buffer, address, path: currentPath(), index: Math.floor((address - buffer.base) / buffer.size)};
    const isOverlap = kind === 'store' && call.verdict === 1 && overwrites(step);
    call.steps.push(step);
    if (step.index >= buffer.room || isOverlap) throw call.fault = {step, reason: isOverlap ? 'overlap' : buffer === nothing ? 'null' : kind};
    if (kind === 'load') step.value = peek({...buffer, base: address}, 0);
    else stored = step;
  };
  try {
    const [kind, number, address] = new Int32Array(memory.buffer, run(), 3);
    settle();
    call.result = ['nothing', String(number), place(call, address)][kind];
  } catch (fault) {
    if (fault !== call.fault) throw fault;
  }
  for (const buffer of [constant, stack, nothing].filter((each) => call.steps.some((step) => step.buffer === each))) {
    // Where it begins was not known before the last access to it.
    const steps = call.steps.filter((step) => step.buffer === buffer);
    for (const step of steps) step.index = (step.address - buffer.base) / buffer.size;
    if (buffer.isOwn) buffer.room = 1 + Math.max(...steps.map((step) => step.index));
    if (buffer === constant) buffer.known = buffer.room;
    buffer.units = Array.from({length: buffer.room}, (_, i) => peek(buffer, i));
    call.buffers.push(buffer);
  }
  for (const buffer of call.buffers) {
    buffer.used = call.steps.reduce((used, step) => step.buffer === buffer ? Math.max(used, step.index + 1) : used, 0);
  }
  return call;
}

function place({buffers}, address) {
  const buffer = buffers.find(({isText, base, size, most}) => isText && address >= base && address < base + size * most);
  return !address ? 'null' : buffer ? `${buffer.name}+${(address - buffer.base) / buffer.size}` : 'a constant empty string';
}

// ---- What a contract says ----

const sentences = (text) => text.split(/(?<=\.)\n/).map((paragraph) =>
  paragraph.replace(/\s+/g, ' ').trim().split(/(?<=[.:]) (?=[A-Z0-9`-])/)).filter(([first]) => first);

// The sentence that forbids the call's last access: the first found of these patterns, the operation's own before others.
function forbidding({name, fault, message, arguments: all}) {
  const {reason, step} = fault, {contract, family} = operations.get(name);
  const size = all.find((each) => each.name === 'size')?.number;
  const patterns = /cursor/.test(message) ? [/not beyond it/] : {
    null: [/must not be null/],
    overlap: [/must not overlap/],
    load: [/exactly `count`/, step.buffer.isBuffer ? /destination is a terminated/ : /must be terminated/, /must be terminated/],
    store: [...size > step.buffer.room ? [/must hold `size`/, /whole destination/, /how many units a destination/] : [],
      /must (hold|have)/, /whole destination|exactly `count`/],
  }[reason];
  const known = [contract, data.families[family], ...data.conventions].flatMap(sentences).flat();
  return patterns.flatMap((pattern) => known.filter((sentence) => pattern.test(sentence)))[0];
}

// ---- What is shown ----

let typed, call, rooms, now = 0, depth = -1, chosen = null, timer = 0;

const hex = (value, size) => value.toString(16).padStart(2 * size, '0');
const escaped = (text) => String(text).replace(/[&<>"]/g, (c) => `&#${c.charCodeAt(0)};`);
const marked = (text) => escaped(text).replace(/`([^`]*)`/g, '<code>$1</code>');
const plural = (count, what) => `${count} ${what}${count === 1 ? '' : 's'}`;
const address = (text) => '#' + encodeURI(text);
const withRooms = (line, rooms) => [line, ...Object.entries(rooms).map(([name, room], i) => `${i ? '' : '| '}${name}[${room}]`)].join(' ');
const isPrintable = (unit) => unit > 31 && unit < 127;

function glyph(unit, {size, most}) {
  if (size === 4) return most > 1 ? place(call, unit) : unit;
  if (unit < 33) return {0: '\\0', 32: '\u2423'}[unit] || '\u00b7';
  const text = String.fromCharCode(unit);
  return isPrintable(unit) || (size === 2 && /[\p{L}\p{N}\p{P}\p{S}]/u.test(text)) ? text : '\u00b7';
}

const spoken = (unit, buffer) => buffer.size === 4 ? glyph(unit, buffer) :
  `${isPrintable(unit) ? `'${String.fromCharCode(unit)}' ` : ''}0x${hex(unit, buffer.size)}`;

// An argument's value as the console takes it.
function valueOf({name, isText, isTyped, isGiven, isNull, number, owner, offset, text, most}, i) {
  const quoted = (unit) => unit === 34 || unit === 92 ? '\\' + String.fromCharCode(unit) :
    isPrintable(unit) ? String.fromCharCode(unit) : unit > 255 ? '\\u' + hex(unit, 2) : '\\x' + hex(unit, 1);
  if (!isGiven) return '';
  if (isNull) return 'null';
  if (owner !== i) return typed.arguments[owner].name + (offset ? `+${offset}` : '');
  if (isTyped) return `"${text.map(quoted).join('')}"`;
  if (isText || most > 1) return '';
  return name === 'character' && isPrintable(number) ? `'${quoted(number)}'` : number;
}

// The fields as a line. A text stands before what names it; what may be left out, or leaves the order, says its name.
function lineOf(fields, isWide = typed.isWide) {
  const isAlias = (field) => fields.some((each) => each.name === field.value.split('+')[0]);
  const used = fields.filter((field) => field.value || field.required);
  const sorted = [...used.filter((field) => !isAlias(field)), ...used.filter(isAlias)];
  const words = sorted.map((field, i) => (field === used[i] && field.required && field.value ? '' : `${field.name}=`) + field.value);
  return [...isWide && operations.get(typed.name).links[1] ? ['wide'] : [], typed.name, ...words].join(' ');
}

function show(text, origin) {
  const [, line, bounds] = /^(.*?)(?: \| ((?:\w+\[\d+\] ?)+))?$/s.exec(text), before = typed;
  rooms = Object.fromEntries([...(bounds || '').matchAll(/(\w+)\[(\d+)\]/g)].map(([, name, room]) => [name, Number(room)]));
  const latest = makeCall(line, rooms);
  if (latest.name) typed = latest;
  // A line that is no call yet leaves the last call in sight, unless it is another operation's.
  if (latest.verdict || !call || typed.name !== call.name) call = typed;
  if (before?.name !== typed.name || before.isWide !== typed.isWide) showOperation();
  if (origin !== 'fields' && latest.verdict) inputs().forEach((field, i) => field.value = valueOf(typed.arguments[i], i));
  if (origin !== 'line') $('line').value = text;
  if (origin !== 'address') history.replaceState(null, '', address(text));
  document.body.classList.toggle('stale', !latest.verdict);
  showResult(latest);
  if (!latest.verdict && call !== typed) return;
  stop();
  now = call.steps.length;
  $('slider').max = now;
  showContract();
  showTry();
  showPlot();
  showStep();
}

const inputs = () => [...$('fields').querySelectorAll('input')];

function showOperation() {
  const {name, isWide, arguments: all, parameters: listed} = typed, {links, cost} = operations.get(name);
  const {link, parameters} = links[links[1] ? isWide : 0];
  depth = -1;
  chosen = null;
  document.title = `${name} \u2013 Quvex, unit by unit`;
  $('name').textContent = name;
  $('link').textContent = link;
  $('width').hidden = !links[1];
  [...$('width').children].forEach((button, i) => button.ariaPressed = String(isWide === i));
  $('fields').innerHTML = all.map((argument, i) => [argument, i, listed.includes(`[${argument.name}]`)]).map(([argument, i, isOptional]) => `<label><span>${argument.name} <small>${parameters[i][0].replaceAll('quvex_', '')}</small></span>
    <input name="${argument.name}" ${isOptional ? '' : 'required'} size="${argument.isText ? 16 : 11}" spellcheck="false" autocomplete="off"
    placeholder="${!isOptional ? '' : argument.most === 1 ? '0' : 'provided'}"></label>`).join('');
  for (const item of $('list').querySelectorAll('a')) item.ariaCurrent = item.textContent === name ? 'page' : null;
  $('list').querySelector('[aria-current]').scrollIntoView({block: 'nearest'});
  $('cost').innerHTML = `<tr><td><th scope="col">for size<th scope="col">for speed${Object.entries(cost[isWide && cost.wide ? 'wide' : 'narrow']).map(
    ([what, cells]) => `<tr><th scope="row">${what}${cells.map((cell) => `<td>${cell}`).join('')}`).join('')}`;
}

function showResult({verdict, message, fault, result, steps}) {
  const loads = steps.filter((step) => step.kind === 'load').length, {reason, step} = fault || {};
  const count = steps.length ? `${plural(loads, 'load')}, ${plural(steps.length - loads, 'store')}` : 'no memory is touched';
  $('result').className = !verdict ? 'refused' : step || verdict === 1 ? 'fault' : '';
  $('result').innerHTML = !verdict ? `<b>?</b> ${escaped(message)}` :
    step ? `<b>The caller\u2019s fault:</b> <code>${step.kind} ${step.buffer.name}[${step.index}]</code> ${
      reason === 'null' ? 'is an access through null' : reason === 'overlap' ? 'writes what is to be read' :
      `leaves ${plural(step.buffer.room, step.buffer.isText ? 'unit' : 'slot')}`}. <q>${marked(forbidding(call))}</q>` :
    verdict === 1 ? `<b>The caller\u2019s fault:</b> ${message}. This call happens to do no harm.` :
    `returns <b>${result}</b> <small>${count}</small>`;
}

// The units of each buffer after so many accesses, and which were read and written until then.
function stateAt(count) {
  const state = new Map(call.buffers.map((buffer) => [buffer, {units: buffer.units.slice(), touched: {}}]));
  for (const {buffer, kind, index, value} of call.steps.slice(0, count)) {
    const {units, touched} = state.get(buffer);
    touched[index] = {...touched[index], [kind]: true};
    if (kind === 'store' && value !== undefined) units[index] = value;
  }
  return state;
}

function showMemory(step) {
  const state = stateAt(now), focus = document.activeElement?.id;
  $('buffers').innerHTML = call.buffers.map((buffer, b) => {
    const {name, size, most, room, known, used, aliases, isOwn} = buffer, {units, touched} = state.get(buffer);
    const inside = Math.min(room, Math.max(known, used) + (isOwn || most === 1 ? 0 : 3));
    const indexes = Array.from({length: inside}, (_, i) => i);
    if (used > room) indexes.push(...Array.from({length: Math.min(used - 1 - room, 4)}, (_, i) => room + i), used - 1);
    const cells = indexes.map((index, i) => {
      const {load, store} = touched[index] || {}, isOutside = index >= room, isNever = !isOutside && index >= known && !load && !store;
      const isNow = step?.buffer === buffer && step.index === index;
      const kinds = [...load ? ['read'] : [], ...store ? ['written'] : []];
      const label = `${name}[${index}]: ${[isOutside ? 'outside' : isNever ? 'marker, never written' : spoken(units[index], buffer), ...kinds].join(', ')}`;
      return `<button id="unit-${b}-${index}" class="cell ${kinds.join(' ')} ${isNever ? 'never' : ''} ${isOutside ? 'outside' : ''}" aria-label="${escaped(label)}"
        tabindex="${i && -1}" ${isNow ? 'aria-current="step"' : ''}><i>${index}</i><b>${isOutside || isNever ? '' : escaped(glyph(units[index], buffer))}</b><small>${
        isOutside || size === 4 || (isOwn && isNever) ? '' : hex(units[index], size)}</small></button>`;
    });
    const count = (kind) => Object.values(touched).filter((each) => each[kind]).length;
    const bound = !(most > 1) ? '' : `<span class="room">room for ${room} <button data-room="${name}" data-to="${Math.min(room, used) - 1}" id="less-${b}"
      aria-label="Less room for ${name}" ${Math.min(room, used) > 0 ? '' : 'disabled'}>\u2212</button><button data-room="${name}" data-to="${room + 1}" id="more-${b}"
      aria-label="More room for ${name}" ${name in rooms ? '' : 'disabled'}>+</button></span>`;
    return `<section class="buffer" aria-label="${name}"><h3>${name} <small>${[...aliases, `${count('load')} read, ${count('store')} written`].join(' \u00b7 ')}</small>${bound}</h3>
      <div class="cells ${size === 4 && most > 1 ? 'broad' : ''}">${cells.join('')}<small>${room > inside && !(used > room) ? `+${room - inside}` : ''}</small></div></section>`;
  }).join('');
  if (focus) $(focus)?.focus({preventScroll: true});
}

function showStep() {
  const step = call.steps[now - 1], count = `${now} / ${call.steps.length}`, isFault = step && step === call.fault?.step;
  const text = !step ? 'before the first access' : `${step.kind} ${step.buffer.name}[${step.index}] ${isFault ? 'leaves the contract' :
    `${step.kind === 'load' ? '\u2192' : '\u2190'} ${spoken(step.value, step.buffer)}`}`;
  $('step').innerHTML = `<b>${count}</b> ${escaped(text)}`;
  $('step').className = isFault ? 'fault' : '';
  $('slider').value = now;
  $('slider').ariaValueText = `${count}: ${text}`;
  $('plot').querySelector('.time')?.setAttribute('transform', `translate(${timeAt(now)})`);
  if (now === call.steps.length) stop();
  showMemory(step);
  showSource(step);
}

function go(count) {
  now = Math.max(0, Math.min(count, call.steps.length));
  showStep();
}

// To the next access that fits, or the first.
function seek(fits) {
  const found = call.steps.flatMap((step, i) => fits(step) ? [i + 1] : []);
  if (found.length) go(found.find((at) => at > now) ?? found[0]);
}

// The plot: time to the right, in line with the slider, and a band for each buffer.
const margin = 8;  // half of the slider's thumb
const timeAt = (count) => margin + count / Math.max(1, call.steps.length) * ($('plot').clientWidth - 2 * margin);

function showPlot() {
  const {steps, fault} = call, width = $('plot').clientWidth, wide = Math.max(1.5, timeAt(1) - timeAt(0) - 1).toFixed(1);
  let top = 0, bands = '';
  for (const buffer of call.buffers.filter(({used}) => used)) {
    const lowest = Math.min(...steps.filter((step) => step.buffer === buffer).map((step) => step.index));
    const unit = Math.max(2, Math.min(8, Math.floor(64 / (buffer.used - lowest)))), height = unit * (buffer.used - lowest);
    const path = (kind, fits) => `<path class="${kind}" d="${steps.map((step, i) => step.buffer !== buffer || !fits(step) ? '' :
      `M${timeAt(i).toFixed(1)} ${top + 18 + unit * (step.index - lowest)}h${wide}v${unit}h-${wide}z`).join('')}"/>`;
    bands += `<text x="${margin}" y="${top + 13}">${buffer.name}</text><rect x="${margin}" y="${top + 18}" width="${width - 2 * margin}" height="${height}"/>
      ${path('read', (step) => step.kind === 'load')}${path('written', (step) => step.kind === 'store')}${path('fault', (step) => step === fault?.step)}
      ${path('chosen', (step) => step.path.some((frame) => frame.key === chosen))}`;
    top += height + 22;
  }
  $('plot').innerHTML = !steps.length ? '' : `<svg width="${width}" height="${top}" role="img"
    aria-label="All ${plural(steps.length, 'access').replace('ss' + 's', 'sses')} over time, a band for each buffer">${bands}<path class="time" d="M0 0V${top}"/></svg>`;
}

function showSource(step) {
  const path = step?.path || [], at = depth in path ? depth : path.length - 1, frame = path[at];
  const named = (file) => file.endsWith('.cpp') && data.sources[file].includes(operations.get(call.name).links[0].link + '(');
  const file = frame?.file || Object.keys(data.sources).find(named);
  const lines = data.sources[file].trimEnd().split('\n'), count = new Map();
  for (const each of call.steps) for (const key of new Set(each.path.map((frame) => frame.key))) count.set(key, (count.get(key) || 0) + 1);
  const line = frame ? frame.line : 1 + lines.findIndex((text) => text.includes(` ${call.name}(`));
  $('path').innerHTML = !path.length ? (step ? 'This browser does not tell the line of an access.' : `<small>${file}</small>`) :
    path.map((each, i) => `<button id="path-${i}" data-depth="${i}" aria-pressed="${i === at}">${each.name} <small>${each.file.split('/').pop()}:${each.line}</small></button>`).join(' \u203a ');
  $('source').innerHTML = lines.map((text, i) => {
    const key = `${file}:${i + 1}`, times = count.get(key), tag = times ? 'button' : 'div';
    return `<${tag} class="row ${frame && i + 1 === line ? 'now' : ''} ${key === chosen ? 'chosen' : ''}" ${times ? `data-key="${key}" id="${key}" aria-pressed="${key === chosen}"` : ''}>
      <small>${i + 1}</small><code>${escaped(text)}</code><small>${times ? `\u00d7${times}` : ''}</small></${tag}>`;
  }).join('');
  const list = $('source'), top = list.children[Math.max(line - 1, 0)].offsetTop;
  if (top < list.scrollTop + 30 || top > list.scrollTop + list.clientHeight - 50) list.scrollTop = top - list.clientHeight / 3;
}

function choose(key) {
  chosen = key;
  showPlot();
  if (key) seek((step) => step.path.some((frame) => frame.key === key));
  else showStep();
}

function showContract() {
  const {contract, family} = operations.get(call.name), broken = call.fault?.step && forbidding(call);
  const paragraphs = (text) => sentences(text).map((each) => `<p>${each.map((sentence) =>
    sentence === broken ? `<mark>${marked(sentence)}</mark>` : marked(sentence)).join(' ')}</p>`).join('');
  const general = data.conventions.filter((text) => broken && sentences(text).flat().includes(broken));
  $('contract').innerHTML = paragraphs(contract) + (data.families[family] ? `<h3>${family}</h3>${paragraphs(data.families[family])}` : '') +
    (general.length ? `<h3>All operations</h3>${paragraphs(general[0])}` : '') +
    `<details><summary>What holds for all operations</summary>${data.conventions.map(paragraphs).join('')}</details>`;
}

function showTry() {
  const link = (line, text) => `<li><a href="${escaped(address(line))}">${text}</a>`;
  const lines = operations.get(call.name).examples.map((line) => [makeCall(line).verdict, link(line, escaped(line))]);
  const tooFew = call.fault || call.verdict !== 2 ? [] : call.buffers.filter(({most, used}) => most > 1 && used).map(({name, used, known, isText}) =>
    link(withRooms(call.line, {...rooms, [name]: used - 1}), `${name} ${isText && used === known ? 'without its terminator' : 'one too short'}`));
  const of = (wanted) => lines.filter(([verdict]) => verdict === wanted).map(([, item]) => item);
  $('try').innerHTML = `<ul>${of(2).join('')}</ul>` + (tooFew.length + of(1).length ? `<h3>Outside the contract</h3><ul>${[...tooFew, ...of(1)].join('')}</ul>` : '');
}

// ---- Hands ----

function stop() {
  clearInterval(timer);
  timer = 0;
  $('play').ariaLabel = 'Play';
}

function play() {
  if (timer || !call.steps.length) return stop();
  if (now === call.steps.length) go(0);
  timer = setInterval(() => go(now + 1), Math.max(30, Math.min(300, 12000 / call.steps.length)));
  $('play').ariaLabel = 'Pause';
}

const by = (count) => { stop(); go(now + count); };
Object.entries({first: () => by(-Infinity), back: () => by(-1), play, forth: () => by(1), last: () => by(Infinity)})
  .forEach(([id, act]) => $(id).onclick = act);
$('slider').oninput = () => by($('slider').value - now);
$('plot').onclick = ({offsetX}) => by(Math.ceil((offsetX - margin) / (timeAt(1) - timeAt(0))) - now);
$('line').oninput = () => show($('line').value, 'line');
$('fields').oninput = () => show(withRooms(lineOf(inputs()), rooms), 'fields');
$('fields').onsubmit = (event) => event.preventDefault();
[...$('width').children].forEach((button, i) => button.onclick = () => show(withRooms(lineOf(inputs(), i), rooms)));
$('copy').onclick = () => { navigator.clipboard?.writeText(typed.line); $('line').select(); };
$('keys').onclick = () => $('help').showModal();
$('menu').onclick = () => { $('menu').ariaExpanded = String(document.body.classList.toggle('menu')); };

addEventListener('click', ({target}) => {
  const button = target.closest('button'), {room, to, key, depth: chosenDepth} = button?.dataset || {};
  const [, b, index] = /^unit-(\d+)-(\d+)$/.exec(button?.id) || [];
  if (b) seek((step) => step.buffer === call.buffers[b] && step.index === Number(index));
  if (key) choose(key);
  if (chosenDepth) depth = Number(chosenDepth), showStep();
  if (!room) return;
  const {[room]: _, ...others} = rooms, {most} = call.buffers.find(({name}) => name === room);
  show(withRooms(typed.line, to < most ? {...rooms, [room]: to} : others));
});

$('filter').oninput = () => {
  const wanted = $('filter').value.trim().toLowerCase();
  for (const item of $('list').querySelectorAll('li')) item.hidden = !item.dataset.words.includes(wanted);
  for (const family of $('list').children) family.hidden = !family.querySelector('li:not([hidden])');
};
$('filter').onkeydown = ({key}) => { if (key === 'Enter') $('list').querySelector('li:not([hidden]) a')?.click(); };

const keys = {ArrowLeft: 'back', ArrowRight: 'forth', Home: 'first', End: 'last', ' ': 'play', '?': 'keys'};
addEventListener('keydown', (event) => {
  const {key, target, ctrlKey, altKey, metaKey} = event;
  if (key === 'Escape' && !$('help').open) target.blur(), choose(null);
  if (ctrlKey || altKey || metaKey || $('help').open || target.tagName === 'INPUT') return;
  if (key === ' ' && /^(BUTTON|A|SUMMARY)$/.test(target.tagName)) return;
  const beside = {ArrowLeft: 'previousElementSibling', ArrowRight: 'nextElementSibling'}[key];
  if (target.className.startsWith?.('cell') && beside) target[beside]?.focus();
  else if (key === '/') $('filter').focus();
  else if (keys[key]) $(keys[key]).click();
  else return;
  event.preventDefault();
});

function open() {
  let text = location.hash.slice(1);
  try {
    text = decodeURIComponent(text);
  } catch {}  // a % that this page did not write
  document.body.classList.remove('menu');
  show(text || operations.get('replace').examples[0], 'address');
}

$('list').innerHTML = Object.entries(data.families).map(([title]) => `<section><h3>${title}</h3><ul>${data.operations.filter(({family}) => family === title).map(
  ({name, examples, summary, links}) => `<li data-words="${escaped([name, summary, ...links.map(({link}) => link)].join(' ').toLowerCase())}"><a href="${
    escaped(address(examples[0]))}">${name}</a>`).join('')}</ul></section>`).join('');
addEventListener('hashchange', open);
new ResizeObserver(() => { showPlot(); showStep(); }).observe($('plot'));
open();
