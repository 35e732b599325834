// Checks HTML templates: node check.mjs [--data DIR] [--pictures DIR] [--canvas DIR] FILE_OR_DIRECTORY...
// A directory stands for its *.hts files. Each page goes through html-validate, the Nu checker and, in
// headless Chromium, axe; then the box of every element is compared with the record of its object in
// NAME.json, which is looked for in --data and beside the template. Exit 1 when anything was found.
import { readFileSync, existsSync, mkdirSync, readdirSync, statSync, mkdtempSync, rmSync } from 'node:fs';
import { basename, dirname, extname, join, resolve } from 'node:path';
import { tmpdir } from 'node:os';
import { createRequire } from 'node:module';
import { parseArgs } from 'node:util';
import { pathToFileURL } from 'node:url';
import { checkMarkup } from './markup.mjs';
import { boxProblems } from './boxes.mjs';
import { differingPixels } from './pixels.mjs';
import { chromium } from 'playwright-core';

const { values: options, positionals } = parseArgs({
    options: { data: { type: 'string' }, pictures: { type: 'string' }, canvas: { type: 'string' } },
    allowPositionals: true,
});

const figures = JSON.parse(readFileSync(new URL('figures.json', import.meta.url), 'utf8'));

function templates(path) {
    if (!statSync(path).isDirectory())
        return [resolve(path)];
    return readdirSync(path)
        .filter((name) => extname(name).toLowerCase() === '.hts')
        .sort()
        .map((name) => resolve(path, name));
}

function recordsOf(file) {
    const name = basename(file, extname(file)) + '.json';
    const path = [options.data, dirname(file)].map((folder) => folder && join(folder, name)).find((p) => p && existsSync(p));
    return path && JSON.parse(readFileSync(path, 'utf8'));
}

// Chromium takes a file of this extension for plain text, so the content is served under the same address.
async function openTemplate(page, file) {
    const address = pathToFileURL(file).href + '.html';
    await page.route(address, (route) => route.fulfill({ contentType: 'text/html', body: readFileSync(file) }));
    await page.goto(address);
}

async function axeProblems(page) {
    const { violations } = await page.evaluate(() => window.axe.run());
    return violations.map((v) => `axe ${v.id}: ${v.help} (${v.nodes.map((n) => n.target).join(', ')})`);
}

// Every message box opens and closes by its buttons alone.
async function dialogProblems(page) {
    const problems = [];
    for (const id of await page.$$eval('dialog', (dialogs) => dialogs.map((d) => d.id))) {
        const shown = () => page.$eval(`#${id}`, (d) => d.matches(':modal'));
        const opener = await page.$(`main [popovertarget="${id}"]:not([popovertargetaction])`);
        await opener?.evaluate((button) => button.click());
        if (!(await shown())) {
            problems.push(`dialog ${id} does not open`);
            continue;
        }
        problems.push(...(await axeProblems(page)));
        await page.locator(`#${id} button`).click();
        if (await shown())
            problems.push(`dialog ${id} does not close`);
    }
    return problems;
}

// The page as it stands in windows from a telephone's width on: every box in its place, nothing out of reach.
async function widthProblems(page, records) {
    const problems = [];
    for (const width of [320, 800, 1280]) {
        await page.setViewportSize({ width, height: 768 });
        problems.push(...(await boxProblems(page, records)).map((p) => `${width} wide: ${p}`));
        const beyond = await page.evaluate(() => {
            window.scrollTo(1e6, 0);
            const end = document.querySelector('.page').getBoundingClientRect();
            window.scrollTo(0, 0);
            return Math.round(end.right - document.documentElement.clientWidth);
        });
        if (beyond > 0)
            problems.push(`${width} wide: ${beyond} px of the page cannot be reached`);
    }
    return problems;
}

// Enter in a field sends nothing; a form that is sent from a List Box names object and entry.
async function enterProblems(page) {
    await page.evaluate(() => document.querySelector('form').addEventListener('submit', (event) => {
        event.preventDefault();
        window.sent = new FormData(event.target, event.submitter).get('object');
    }));
    const field = await page.$('input[type=text]:not([readonly])');
    await field?.focus();
    await page.keyboard.press('Enter');
    const problems = (await page.evaluate(() => 'sent' in window)) ? ['Enter sends the form'] : [];
    for (const button of await page.$$('.list button[type=submit]')) {
        const value = await button.getAttribute('value');
        await button.evaluate((b) => { b.form.noValidate = true; b.click(); });
        if ((await page.evaluate(() => window.sent)) !== value)
            problems.push(`entry ${value} does not send itself`);
    }
    return problems;
}

// The template must look like the picture of the page's canvas beside it; figures.json has the share of differing pixels
// that was reached, in percent, where it is above the usual one.
async function likenessProblems(page, file, records) {
    const canvas = file.replace(/\.hts$/, '.canvas.png');
    if (!options.canvas || !existsSync(canvas) || !(records?.bkgwd > 0 && records.bkght > 0))
        return [];
    const name = `${basename(dirname(file))}.${basename(file, '.hts')}`;
    const share = await differingPixels(page, records, canvas, options.canvas, name);
    const limit = figures[name] ?? figures.usual;
    console.log(`  ${name}: ${share.toFixed(2)} % of the pixels differ from the canvas`);
    return share > limit ? [`${share.toFixed(2)} % of the pixels differ from the canvas, more than ${limit} %`] : [];
}

async function browserProblems(browser, file) {
    const page = await browser.newPage();
    await openTemplate(page, file);
    await page.addScriptTag({ path: createRequire(import.meta.url).resolve('axe-core') });
    const problems = await axeProblems(page);
    const records = recordsOf(file);
    problems.push(...(records ? await widthProblems(page, records) : ['no records to compare boxes with']));
    if (options.pictures)
        await page.screenshot({ path: join(options.pictures, basename(file) + '.png') });
    problems.push(...(await likenessProblems(page, file, records)));
    problems.push(...(await dialogProblems(page)), ...(await enterProblems(page)));
    await page.close();
    return problems;
}

if (positionals.length === 0)
    throw new Error('usage: node check.mjs [--data DIR] [--pictures DIR] FILE_OR_DIRECTORY...');
if (options.pictures)
    mkdirSync(options.pictures, { recursive: true });
const files = positionals.flatMap(templates);
if (files.length === 0)
    throw new Error('no templates found');
const markup = checkMarkup(files);
const profile = mkdtempSync(join(tmpdir(), 'corvanta-html-'));
const browser = await chromium.launchPersistentContext(profile, {
    executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium',
    headless: true,
    viewport: { width: 1024, height: 768 },
    args: ['--no-sandbox', '--disable-gpu', '--disable-quic', '--no-first-run',
           '--disable-background-networking', '--disable-component-update', '--disable-sync'],
});
let found = 0;
try {
    for (const file of files) {
        const problems = [...markup.get(file), ...(await browserProblems(browser, file))];
        console.log(`${basename(file)}: ${problems.length === 0 ? 'ok' : `${problems.length} found`}`);
        for (const problem of problems)
            console.log(`  ${problem}`);
        found += problems.length;
    }
} finally {
    await browser.close();
    rmSync(profile, { recursive: true, force: true });
}
process.exitCode = found === 0 ? 0 : 1;
