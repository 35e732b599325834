// Compares a template in the browser with the canvas's picture of the same page, pixel by pixel.
import { spawnSync } from 'node:child_process';
import { join } from 'node:path';

const hotSpot = 2, textBox = 5, image = 6, ticker = 7, animation = 8, imageDb = 10, comboBox = 11, file = 12, url = 13;
const tolerance = '8%', edge = 2, arrow = 19; // pixels

// What stands on the canvas for something that a visitor sees otherwise: areas, names of fields, moving texts.
function placeholderOf(o) {
    const { pleft, ptop, pwidth, pheight } = o;
    const invisible = (o.kind === textBox || o.kind === file) && (o.objflags & 8) !== 0;
    const inside = (left, right) => [pleft + left, ptop + edge, pleft + pwidth - right - 1, ptop + pheight - edge - 1];
    const all = [pleft, ptop, pleft + pwidth - 1, ptop + pheight - 1];
    if (invisible)
        return all;
    switch (o.kind) {
    case hotSpot: case ticker: return all;
    case image: return o.srcfile === '' ? inside(edge, edge) : null;
    case animation: return o.srcfile === '' ? all : null;
    case imageDb: return inside(edge, edge);
    case textBox: case file: return inside(edge, edge);
    case comboBox: return inside(edge, arrow);
    case url: return o.datacol !== '' ? inside(0, 0) : null;
    default: return null;
    }
}

function masks(records) {
    const boxes = records.objects.map(placeholderOf).filter((b) => b && b[2] >= b[0] && b[3] >= b[1]);
    return boxes.length === 0 ? [] : ['-fill', 'white', ...boxes.flatMap((b) => ['-draw', `rectangle ${b[0]},${b[1]} ${b[2]},${b[3]}`])];
}

function run(program, args) {
    const done = spawnSync(program, args, { encoding: 'utf8', maxBuffer: 1 << 26 });
    if (done.error || done.status > 1)
        throw new Error(`${program} did not run: ${done.error ?? done.stderr}`);
    return done.stderr;
}

// The share of differing pixels in percent, placeholders left out.
export async function differingPixels(page, records, canvas, folder, name) {
    const width = records.bkgwd, height = records.bkght;
    await page.setViewportSize({ width, height });
    await page.evaluate(() => document.getAnimations().forEach((a) => { a.pause(); a.currentTime = 0; }));
    const browser = join(folder, `${name}.browser.png`), wanted = join(folder, `${name}.canvas.png`);
    await page.screenshot({ path: browser, clip: { x: 0, y: 0, width, height } });
    run('convert', [canvas, ...masks(records), wanted]);
    run('convert', [browser, ...masks(records), browser]);
    const count = run('compare', ['-metric', 'AE', '-fuzz', tolerance, wanted, browser, join(folder, `${name}.difference.png`)]);
    return 100 * Number(count) / (width * height);
}
