// Writes pages with every kind, every action and awkward texts, as JSON for "odspage build":
// node gallery.mjs FOLDER
import { mkdirSync, writeFileSync } from 'node:fs';
import { join } from 'node:path';

const kinds = { button: 1, hotSpot: 2, listBox: 3, label: 4, textBox: 5, image: 6, ticker: 7, animation: 8, grid: 9,
                imageDb: 10, comboBox: 11, file: 12, url: 13 };
const black = 0, white = 0xffffff, grey = 0xc0c0c0;
const awkward = `</style></title><script>alert("1")</script> 'a' & <b>b</b> -->`;

const font = (more = {}) => ({ ForeColor: black, FontBold: false, FontItalic: false, FontName: 'MS Sans Serif',
                               FontSize: 8.25, FontStrikethru: false, FontUnderline: false, ...more });
const tails = {
    button: { Caption: '', BevelWidth: 2, font: font(), viewcond: '', enacond: '', credits: '', auditmsg: '', balhelp: '' },
    listBox: { BackColor: white, font: font(), entries: [] },
    label: { Caption: '', font: font(), BackStyle: 1, BackColor: white, BorderStyle: 1 },
    textBox: { font: font(), BackColor: white, inptype: 0, sysobj: -1, maxlen: 0 },
    ticker: { Caption: '', BackColor: white, BorderStyle: 0, speed: 5, font: font() },
    animation: { frozen: 0, nplay: 0, strictime: 0, frames: [] },
    grid: { font: font(), BackColor: white },
    comboBox: { BackColor: white, font: font(), entries: [] },
    file: { BackColor: white, font: font() },
    url: { Caption: '', font: font({ FontUnderline: true }), BackStyle: 1, BackColor: white },
};

// Objects stand in a table of cells of 110 x 40 pixels, eight in a row.
function object(kind, index, tail = {}, common = {}) {
    return {
        kind: kinds[kind], keyreq: '', srcfile: '', ptop: 10 + 40 * Math.floor(index / 8), pleft: 10 + 110 * (index % 8),
        pheight: 32, pwidth: 100, sptext: '', actlist: { code: 0 }, objflags: 0, ctlname: '', datacol: '', updatekey: '',
        alignment: index % 3, tbindex: 0, condobjname: '', ...common,
        ...(tails[kind] ? { kindextra: { ...tails[kind], ...tail } } : {}),
    };
}

const message = { code: 523, title: 'Note', text: `Line one ${awkward}` };
const actions = [
    { code: 0 }, { code: 1, page: 'C:\\PAGES\\MENU.ODS' }, { code: 1, page: '' }, { code: 4, userid: 'anna' },
    { code: 10, url: 'javascript:alert(1)' }, { code: 10, url: 'https://example.com/a b?x=1&y=[2]#c#d' },
    { code: 13, app: 'STOCK', command: '/code @code@' }, { code: 500 }, { code: 508 }, { code: 512, entries: [] },
    { code: 520 }, { code: 521 }, { code: 522 }, message,
];

// Each action on each kind that carries one, with a text and without.
function actionObjects() {
    const objects = [];
    const files = { button: '', hotSpot: '', label: '', image: 'logo.bmp', ticker: '', animation: '', grid: '', file: '' };
    for (const [kind, srcfile] of Object.entries(files))
        for (const actlist of kind === 'ticker' ? [{ code: 0 }, { code: 1, page: 'NEWS' }, message] : actions)
            objects.push(object(kind, objects.length, kind in { button: 1, label: 1, ticker: 1 } ? { Caption: 'Text' } : {},
                                { actlist, srcfile }));
    return objects;
}

function fieldObjects() {
    const objects = [];
    const add = (kind, tail, common) => objects.push(object(kind, objects.length, tail, common));
    for (const sysobj of [-1, 0, 1, 2, 3, 4])
        for (const objflags of [0, 2, 8, 16])
            add('textBox', { sysobj, maxlen: 20 }, { objflags, ctlname: `s${sysobj}f${objflags}`, datacol: 'T.C' });
    for (const inptype of [1, 2, 3, 4, 5, 6])
        add('textBox', { inptype, maxlen: 9 }, { ctlname: 'twice', datacol: 'T.D', sptext: awkward });
    add('textBox', {}, { ctlname: 'isindex' });
    add('label', { Caption: awkward });
    add('comboBox', { entries: ['a', 'a', '', awkward] }, { ctlname: '"><script>', datacol: 'T.E' });
    add('comboBox', {}, {});
    add('listBox', { entries: [{ text: '', action: { code: 0 } }, { text: awkward, action: message }] }, {});
    add('listBox', {}, {});
    add('listBox', { entries: actions.map((action, i) => ({ text: i === 3 ? '' : `Entry ${i}`, action })) }, { sptext: 'Acts' });
    for (const objflags of [0, 2, 4, 8])
        add('file', {}, { objflags, ctlname: `file${objflags}`, srcfile: 'C:\\SERVER', actlist: { code: 511, fileobj: 'x' } });
    for (const Caption of ['', 'www.example.com', 'file:///etc/passwd', 'help page.htm?a=1&b=2', awkward])
        add('url', { Caption }, {});
    for (const srcfile of ['', 'C:\\PHOTOS', '\\\\server\\photos', 'photos', 'http://example.com/photos/'])
        add('imageDb', undefined, { srcfile, ctlname: 'photo of', datacol: 'T.F' });
    add('imageDb');
    add('grid', {}, { ctlname: '' });
    add('image', undefined, { sptext: awkward, srcfile: 'a "b" c.bmp' });
    add('button', { Caption: awkward, balhelp: awkward }, { srcfile: '..\\x.bmp' });
    const place = object('animation', objects.length), frame = { top: place.ptop, left: place.pleft };
    add('animation', { nplay: 2, frozen: 1, frames: [{ ...frame, duration: 3 }, { top: 5, left: 5, duration: 7 }] },
        { srcfile: 'a.bmp\ta.wav\tb.bmp\t', sptext: 'Lamp' });
    add('ticker', { Caption: awkward, font: font({ FontName: '"};x{', FontSize: 0 }) });
    add('label', { Caption: 'System', BackColor: -2147483643, font: font({ ForeColor: -2147483640 }) });
    return objects;
}

function page(objects, more = {}) {
    const rows = Math.ceil(objects.length / 8);
    return { pgversion: 3, PageType: 1, dbconnect: 'Orders\tclerk\ts3cret\tCustomers', SelectStmt: 'Select 1', bkgfile: '',
             sndfn: '', bkgcol: grey, bkght: 10 + 40 * rows, bkgwd: 900, pgflags: 8, pgcaption: awkward.repeat(2), keyreq: 'k',
             gridcolumns: [{ descriptor: 'Name\tT.Name', width: 900 }, { descriptor: '\tT.X', width: 0 },
                           { descriptor: `${awkward}\t`, width: 6000 }], objects, ...more };
}

const folder = process.argv[2];
mkdirSync(folder, { recursive: true });
const pages = {
    actions: page(actionObjects()),
    fields: page(fieldObjects()),
    recordfields: page(fieldObjects(), { PageType: 2, pgflags: 10, pgcaption: '', bkgfile: 'back ground.bmp', sndfn: 'C:\\S\\a b.wav' }),
    nocolumns: page([object('grid', 0)], { gridcolumns: [] }),
};
for (const [name, json] of Object.entries(pages))
    writeFileSync(join(folder, `${name}.json`), JSON.stringify(json));
