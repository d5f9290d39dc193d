'use strict';

const $ = (id) => document.getElementById(id);
const data = JSON.parse($('data').textContent);
const operations = new Map(data.operations.map((each) => [each.name, each]));
const module = new WebAssembly.Module(Uint8Array.from(atob(data.wasm), (c) => c.charCodeAt(0)));
const mostTyped = 199;

const hex = (value, size) => value.toString(16).padStart(2 * size, '0');
const escaped = (text) => String(text).replace(/[&<>"]/g, (c) => `&#${c.charCodeAt(0)};`);
const marked = (text) => escaped(text).replace(/`([^`]*)`/g, '<code>$1</code>');
const plural = (count, what) => `${count} ${what}${count === 1 ? '' : 's'}`;
const numbers = (from, to) => Array.from({length: Math.max(0, to - from)}, (_, i) => from + i);

// ---- A call: the console's parser and table, and the library, in a memory of their own ----

const paths = new Map();  // by the stack at a hook

// The path of source lines, outermost first, of the access whose hook runs.
function currentPath() {
  const {stack} = new Error();
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
  const hooks = {};
  let access = () => {};
  for (const {name} of WebAssembly.Module.imports(module)) {
    const [, kind, bytes] = /(load|store|pc)(\d*)$/.exec(name);
    hooks[name] = kind === 'pc' ? () => {} : (address) => access(kind, address >>> 0, Number(bytes));
  }
  const {memory, line, read, run} = new WebAssembly.Instance(module, {env: hooks}).exports;
  const bytes = new Uint8Array(memory.buffer), view = new DataView(memory.buffer);
  const getters = {1: 'getUint8', 2: 'getUint16', 4: 'getUint32'};
  const peek = ({base, size}, index) => view[getters[size]](base + size * index, true);

  typed = typed.replaceAll('\t', ' ').replace(/[^\0-\x7f]/g, (c) => '\\u' + hex(c.charCodeAt(0), 2));
  [...typed.slice(0, mostTyped)].forEach((c, i) => bytes[line.value + i] = c.charCodeAt(0));
  const told = read(), end = bytes.indexOf(0, told);
  const [message, json] = String.fromCharCode(...bytes.subarray(told, end)).split(/\n(?=\{)/);
  const call = {line: typed, message: message.slice(2), steps: [], buffers: [], fault: null, ...JSON.parse(json)};
  const tooLong = {verdict: 0, message: `the line is longer than ${mostTyped} characters`};
  if (typed.length > mostTyped) Object.assign(call, tooLong);
  for (const each of call.arguments) {
    each.isTyped = each.isText && each.isGiven && peek(each, each.length) === 0;  // and not named for what is provided
    each.text = numbers(0, each.length).map((i) => peek(each, i));
  }
  if (!call.verdict) return call;

  // Memory from the highest address down: what each argument points to, with all that lies above it up to the next.
  call.arguments.forEach((argument, i) => {
    const {name, size, isNull, owner, isText, isTyped, length, most} = argument;
    if (!size || isNull || owner !== i) return;
    // What is forbidden shows where it happens: behind the string, and not in the markers after it.
    const isExact = isTyped && call.verdict === 1, room = isExact ? length + 1 : most;
    const aliases = call.arguments.filter((each) => each !== argument && each.isText && !each.isNull && each.owner === i)
      .map((each) => `${each.name} = ${name}${each.offset ? `+${each.offset}` : ''}`);
    call.buffers.push({...argument, argument, aliases, known: isTyped ? length + 1 : Number(most === 1),
      room: name in rooms && most > 1 ? Math.min(rooms[name], most) : room});
  });
  for (const buffer of call.buffers) buffer.units = numbers(0, buffer.room).map((i) => peek(buffer, i));
  const own = (name) => ({name, isOwn: true, room: Infinity, known: 0, aliases: ['the operation\u2019s own']});
  const constant = own('constant'), stack = own('stack'), isNull = call.arguments.find((each) => each.isNull);
  const nothing = {name: isNull?.name, size: 1, base: 0, room: 0, known: 0, aliases: ['null']};
  const regions = [...call.buffers.map((buffer) => [buffer.base, buffer]), [65536, constant], [1024, stack], [0, nothing]]
    .sort((a, b) => b[0] - a[0]);

  let stored = null;  // A hook runs before its access: the value is there at the next.
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
    if (step.index >= buffer.room || isOverlap) {
      throw call.fault = {step, reason: isOverlap ? 'overlap' : buffer === nothing ? 'null' : kind};
    }
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
  for (const buffer of [constant, stack, nothing]) {
    // Where it begins was not known before the last access to it.
    const steps = call.steps.filter((step) => step.buffer === buffer);
    for (const step of steps) step.index = (step.address - buffer.base) / buffer.size;
    if (buffer.isOwn) buffer.room = 1 + Math.max(...steps.map((step) => step.index));
    if (buffer === constant) buffer.known = buffer.room;
    if (steps.length) call.buffers.push({...buffer, units: numbers(0, buffer.room).map((i) => peek(buffer, i))});
    for (const step of steps) step.buffer = call.buffers.at(-1);
  }
  for (const buffer of call.buffers) {
    buffer.used = call.steps.reduce((used, step) => step.buffer === buffer ? Math.max(used, step.index + 1) : used, 0);
  }
  return call;
}

function place({buffers}, address) {
  const isIn = ({isText, base, size, most}) => isText && address >= base && address < base + size * most;
  const buffer = buffers.find(isIn);
  if (!address) return 'null';
  return buffer ? `${buffer.name}+${(address - buffer.base) / buffer.size}` : 'a constant empty string';
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

let typed, call, rooms, now = 0, depth = -1, chosen = null, timer = 0;

const address = (text) => '#' + encodeURI(text);
const withRooms = (line, rooms) =>
  [line, ...Object.entries(rooms).map(([name, room], i) => `${i ? '' : '| '}${name}[${room}]`)].join(' ');
const isPrintable = (unit) => unit > 31 && unit < 127;
const inputs = () => [...$('fields').querySelectorAll('input')];

// Replace what has changed, so that the rest keeps its place and the focus.
function patch(list, items) {
  const old = list.items, focus = document.activeElement.id;
  list.items = items;
  if (old?.length !== items.length || !list.children.length) list.innerHTML = items.join('');
  else items.forEach((item, i) => { if (item !== old[i]) list.children[i].outerHTML = item; });
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
function valueOf({name, isText, isTyped, isGiven, isNull, number, owner, offset, text, most}, i) {
  const quoted = (unit) => isPrintable(unit) ? (unit === 34 || unit === 92 ? '\\' : '') + String.fromCharCode(unit) :
    unit > 255 ? '\\u' + hex(unit, 2) : '\\x' + hex(unit, 1);
  if (isNull) return 'null';
  if (owner !== i) return typed.arguments[owner].name + (offset ? `+${offset}` : '');
  if (isTyped) return `"${text.map(quoted).join('')}"`;
  if (!isGiven || isText || most > 1 && !isText && number === 0 && name === 'array') return '';
  return name === 'character' && isPrintable(number) ? `'${quoted(number)}'` : number;
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
  const [, line, bounds] = /^(.*?)(?: \| ((?:\w+\[\d+\] ?)+))?$/s.exec(text), before = typed;
  rooms = Object.fromEntries([...(bounds || '').matchAll(/(\w+)\[(\d+)\]/g)].map(([, name, room]) => [name, Number(room)]));
  const latest = makeCall(line, rooms);
  if (latest.name) typed = latest;
  // A line that is no call yet leaves the last call in sight, unless it is another operation's.
  if (latest.verdict || typed.name !== call?.name) call = typed;
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
  showBuffers();
  showPlot();
  showStep();
  setTimeout(showTry);
}

function showOperation() {
  const {name, isWide, parameters: listed} = typed, {links, cost} = operations.get(name);
  const {link, parameters} = links[links[1] ? isWide : 0];
  depth = -1;
  chosen = null;
  document.title = `${name} \u2013 Quvex, unit by unit`;
  $('name').textContent = name;
  $('link').textContent = link;
  $('width').hidden = !links[1];
  [...$('width').children].forEach((button, i) => button.ariaPressed = String(isWide === i));
  $('fields').innerHTML = typed.arguments.map(({name, isText, most}, i) => {
    const isOptional = listed.includes(`[${name}]`), placeholder = !isOptional ? '' : most === 1 ? '0' : 'provided';
    return `<label><span>${name} <small>${parameters[i][0].replaceAll('quvex_', '')}</small></span>
      <input name="${name}" ${isOptional ? '' : 'required'} size="${isText ? 16 : 11}" placeholder="${placeholder}"
      spellcheck="false" autocomplete="off"></label>`;
  }).join('');
  for (const item of $('list').querySelectorAll('a')) item.ariaCurrent = item.textContent === name ? 'page' : null;
  $('list').querySelector('[aria-current]').scrollIntoView({block: 'nearest'});
  const rows = Object.entries(cost[isWide && links[1] ? 'wide' : 'narrow']).map(([what, cells]) =>
    `<tr><th scope="row">${what}${cells.map((cell) => `<td>${cell}`).join('')}`);
  $('cost').innerHTML = `<tr><td><th scope="col">for size<th scope="col">for speed${rows.join('')}`;
}

function showResult({verdict, message, fault, result, steps}) {
  const {reason, step} = fault || {}, loads = steps.filter(({kind}) => kind === 'load').length;
  const count = steps.length ? `${plural(loads, 'load')}, ${plural(steps.length - loads, 'store')}` : 'no memory is touched';
  const why = {null: 'is an access through null', overlap: 'writes what is to be read'}[reason] ||
    step && `leaves ${plural(step.buffer.room, step.buffer.isText ? 'unit' : 'slot')}`;
  $('result').className = !verdict ? 'refused' : fault || verdict === 1 ? 'fault' : '';
  $('result').innerHTML = !verdict ? `<b>?</b> ${escaped(message)}` : verdict === 2 && !fault ?
    `returns <b>${result}</b> <small>${count}</small>` : `<b>The caller\u2019s fault:</b> ${!fault ? escaped(message) :
    `<code>${step.kind} ${step.buffer.name}[${step.index}]</code> ${why}. <q>${marked(forbidding(call))}</q>`}`;
}

function showBuffers() {
  patch($('buffers'), call.buffers.map(({name, aliases, room, most, used, size}, b) => {
    const less = Math.min(room, used) - 1, step = (id, to, word, sign, isOn) => `<button id="${id}-${b}" data-room="${name}"
      data-to="${to}" aria-label="${word} room for ${name}" ${isOn ? '' : 'disabled'}>${sign}</button>`;
    return `<section class="buffer" aria-label="${name}"><h3>${name} <small>${aliases.join(', ')}</small>
      <small id="count-${b}"></small>${!(most > 1) ? '' : `<span class="room">room for ${room}
      ${step('less', less, 'Less', '\u2212', less >= 0)}${step('more', room + 1, 'More', '+', name in rooms)}</span>`}</h3>
      <div id="cells-${b}" class="cells ${size === 4 && most > 1 ? 'broad' : ''}"></div></section>`;
  }));
}

// The units of each buffer after so many accesses, and which were read and written until then.
function showCells(current) {
  const state = new Map(call.buffers.map((buffer) => [buffer, {units: [...buffer.units], load: new Set(), store: new Set()}]));
  for (const {buffer, kind, index, value} of call.steps.slice(0, now)) {
    state.get(buffer)[kind].add(index);
    if (kind === 'store' && value !== undefined) state.get(buffer).units[index] = value;
  }
  call.buffers.forEach((buffer, b) => {
    const {name, size, most, room, known, used, isOwn} = buffer, {units, load, store} = state.get(buffer);
    const inside = Math.min(room, Math.max(known, used) + (isOwn || most === 1 ? 0 : 3));
    const outside = used > room ? [...numbers(room, Math.min(room + 4, used - 1)), used - 1] : [];
    const cells = [...numbers(0, inside), ...outside].map((index) => {
      const isOutside = index >= room, isNever = !isOutside && index >= known && !load.has(index) && !store.has(index);
      const isNow = current?.buffer === buffer && current.index === index, isBlank = isOutside || isNever;
      const kinds = [...load.has(index) ? ['read'] : [], ...store.has(index) ? ['written'] : []];
      const says = [isOutside ? 'outside' : isNever ? 'marker, never written' : spoken(units[index], buffer), ...kinds];
      return `<button id="unit-${b}-${index}" tabindex="${index && -1}" aria-label="${escaped(`${name}[${index}]: ${says.join(', ')}`)}"
        class="${['cell', ...kinds, ...isNever ? ['never'] : [], ...isOutside ? ['outside'] : []].join(' ')}"
        ${isNow ? 'aria-current="step"' : ''}><i>${index}</i><b>${isBlank ? '' : escaped(glyph(units[index], buffer))}</b><small>${
        isOutside || size === 4 || (isOwn && isNever) ? '' : hex(units[index], size)}</small></button>`;
    });
    patch($(`cells-${b}`), [...cells, `<small>${room > inside && !outside.length ? `+${room - inside}` : ''}</small>`]);
    $(`count-${b}`).textContent = `${load.size} read, ${store.size} written`;
  });
}

function showStep() {
  const step = call.steps[now - 1], count = `${now} / ${call.steps.length}`, isFault = step && step === call.fault?.step;
  const does = !step ? 'before the first access' : `${step.kind} ${step.buffer.name}[${step.index}] ${isFault ?
    'leaves the contract' : `${step.kind === 'load' ? '\u2192' : '\u2190'} ${spoken(step.value, step.buffer)}`}`;
  $('step').innerHTML = `<b>${count}</b> ${escaped(does)}`;
  $('step').className = isFault ? 'fault' : '';
  $('slider').value = now;
  $('slider').ariaValueText = `${count}: ${does}`;
  $('plot').querySelector('.time')?.setAttribute('transform', `translate(${timeAt(now)})`);
  if (now === call.steps.length) stop();
  showCells(step);
  showSource(step);
}

// To the next access that fits, or the first.
function seek(fits) {
  const found = call.steps.flatMap((step, i) => fits(step) ? [i + 1] : []);
  if (found.length) by((found.find((at) => at > now) ?? found[0]) - now);
}

// The plot: time to the right, in line with the slider, and a band for each buffer.
const margin = 8;  // half of the slider's thumb
const timeAt = (count) => margin + count / Math.max(1, call.steps.length) * ($('plot').clientWidth - 2 * margin);
const isChosen = (step) => step.path.some((frame) => frame.key === chosen);

function showPlot() {
  const {steps, fault} = call, width = $('plot').clientWidth, long = Math.max(1.5, timeAt(1) - timeAt(0) - 1).toFixed(1);
  let top = 0, bands = '';
  for (const buffer of call.buffers.filter(({used}) => used)) {
    const lowest = Math.min(...steps.filter((step) => step.buffer === buffer).map((step) => step.index));
    const unit = Math.max(2, Math.min(8, Math.floor(64 / (buffer.used - lowest))));
    const path = (name, fits) => `<path class="${name}" d="${steps.map((step, i) => step.buffer !== buffer || !fits(step) ? '' :
      `M${timeAt(i).toFixed(1)} ${top + 18 + unit * (step.index - lowest)}h${long}v${unit}h-${long}z`).join('')}"/>`;
    bands += `<text x="${margin}" y="${top + 13}">${buffer.name}</text><rect x="${margin}" y="${top + 18}"
      width="${Math.max(0, width - 2 * margin)}" height="${unit * (buffer.used - lowest)}"/>${path('read', ({kind}) => kind === 'load')}
      ${path('written', ({kind}) => kind === 'store')}${path('fault', (step) => step === fault?.step)}${path('chosen', isChosen)}`;
    top += unit * (buffer.used - lowest) + 22;
  }
  $('plot').innerHTML = steps.length ? `<svg width="${width}" height="${top}" role="img" aria-label="The ${steps.length}
    accesses over time, a band for each buffer">${bands}<path class="time" d="M0 0V${top}"/></svg>` : '';
}

function showSource(step) {
  const path = step?.path || [], at = depth in path ? depth : path.length - 1, frame = path[at];
  const {link} = operations.get(call.name).links[0], count = new Map();
  const file = frame?.file || Object.keys(data.sources).find((name) => data.sources[name].includes(`${link}(`) && /cpp$/.test(name));
  const lines = data.sources[file].trimEnd().split('\n');
  const line = frame?.line || 1 + lines.findIndex((text) => text.includes(` ${call.name}(`));
  for (const {path} of call.steps) for (const key of new Set(path.map(({key}) => key))) count.set(key, (count.get(key) || 0) + 1);
  $('path').innerHTML = path.map(({name, file, line}, i) => `<button id="path-${i}" data-depth="${i}" aria-pressed="${i === at}">
    ${name} <small>${file.split('/').pop()}:${line}</small></button>`).join(' \u203a ') ||
    (step ? 'This browser does not tell the line of an access.' : `<small>${file}</small>`);
  patch($('source'), lines.map((text, i) => {
    const key = `${file}:${i + 1}`, times = count.get(key), [tag, more] = times ?
      ['button', `data-key="${key}" id="${key}" aria-pressed="${key === chosen}"`] : ['div', ''];
    return `<${tag} class="row ${frame && i + 1 === line ? 'now' : ''}" ${more}><small>${i + 1}</small><code>${escaped(text)}</code>
      <small>${times ? `\u00d7${times}` : ''}</small></${tag}>`;
  }));
  const list = $('source'), top = list.children[Math.max(line - 1, 0)].offsetTop, {clientHeight: height} = list;
  if (top < list.scrollTop + 30 || top > list.scrollTop + height - 50) list.scrollTop = top - height / 3;
}

function choose(key) {
  chosen = key;
  showPlot();
  if (key) seek(isChosen);
  else showStep();
}

function showContract() {
  const {contract, family} = operations.get(call.name), broken = call.fault && forbidding(call);
  const paragraphs = (text) => sentences(text).map((each) => `<p>${each.map((sentence) =>
    sentence === broken ? `<mark>${marked(sentence)}</mark>` : marked(sentence)).join(' ')}</p>`).join('');
  const {[family]: general} = data.families, brokenRule = data.conventions.filter((text) => sentences(text).flat().includes(broken));
  $('contract').innerHTML = paragraphs(contract) + (general && `<h3>${family}</h3>${paragraphs(general)}`) +
    brokenRule.map((rule) => `<h3>All operations</h3>${paragraphs(rule)}`).join('') +
    `<details><summary>What holds for all operations</summary>${data.conventions.map(paragraphs).join('')}</details>`;
}

function showTry() {
  const link = (line, text) => `<li><a href="${escaped(address(line))}">${escaped(text)}</a>`;
  const lines = operations.get(call.name).examples.map((line) => [makeCall(line).verdict, link(line, line)]);
  const of = (wanted) => lines.filter(([verdict]) => verdict === wanted).map(([, item]) => item);
  const tooFew = call.fault || call.verdict !== 2 ? [] : call.buffers.filter(({most, used}) => most > 1 && used)
    .map(({name, used, known}) => link(withRooms(call.line, {...rooms, [name]: used - 1}),
      `${name} ${used === known ? 'without its terminator' : 'one too short'}`));
  const forbidden = [...tooFew, ...of(1)].join('');
  $('try').innerHTML = `<ul>${of(2).join('')}</ul>${forbidden && `<h3>Outside the contract</h3><ul>${forbidden}</ul>`}`;
}

// ---- Hands ----

function by(count) {
  now = Math.max(0, Math.min(now + count, call.steps.length));
  showStep();
}

function stop() {
  clearInterval(timer);
  timer = 0;
  $('play').ariaLabel = 'Play';
}

function play() {
  if (timer || !call.steps.length) return stop();
  if (now === call.steps.length) by(-Infinity);
  timer = setInterval(() => by(1), Math.max(30, Math.min(300, 12000 / call.steps.length)));
  $('play').ariaLabel = 'Pause';
}

const acts = {first: -Infinity, back: -1, forth: 1, last: Infinity};
for (const [id, count] of Object.entries(acts)) $(id).onclick = () => { stop(); by(count); };
$('play').onclick = play;
$('slider').oninput = () => { stop(); by($('slider').value - now); };
$('plot').onclick = ({offsetX}) => { stop(); by(Math.ceil((offsetX - margin) / (timeAt(1) - timeAt(0))) - now); };
$('line').oninput = () => show($('line').value, 'line');
$('fields').oninput = () => show(withRooms(lineOf(inputs()), rooms), 'fields');
$('fields').onsubmit = (event) => event.preventDefault();
[...$('width').children].forEach((button, i) => button.onclick = () => show(withRooms(lineOf(inputs(), i), rooms)));
$('copy').onclick = () => { navigator.clipboard?.writeText(typed.line); $('line').select(); };
$('keys').onclick = () => $('help').showModal();
$('menu').onclick = () => { $('menu').ariaExpanded = String(document.body.classList.toggle('menu')); };

addEventListener('click', ({target}) => {
  const {id, dataset: {room, to, key, depth: chosenDepth}} = target.closest('button') || document.body;
  const [, b, index] = /^unit-(\d+)-(\d+)$/.exec(id) || [];
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
  const beside = {ArrowLeft: 'previousElementSibling', ArrowRight: 'nextElementSibling'}[key];
  if (key === 'Escape' && !$('help').open) target.blur(), choose(null);
  if (ctrlKey || altKey || metaKey || $('help').open || target.tagName === 'INPUT') return;
  if (key === ' ' && target !== document.body) return;
  if (beside && target.classList.contains('cell')) target[beside]?.focus();
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

$('list').innerHTML = Object.keys(data.families).map((title) => `<section><h3>${title}</h3><ul>${
  data.operations.filter(({family}) => family === title).map(({name, examples, summary, links}) =>
    `<li data-words="${escaped([name, summary, ...links.map(({link}) => link)].join(' ').toLowerCase())}">
    <a href="${escaped(address(examples[0]))}">${name}</a>`).join('')}</ul></section>`).join('');
addEventListener('hashchange', open);
open();
new ResizeObserver(() => { showPlot(); showStep(); }).observe($('plot'));
