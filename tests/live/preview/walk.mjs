// Walks through the sample application as a visitor: node walk.mjs ADDRESS reading|writing PAGES PROGRAMS
import { execFileSync } from 'node:child_process';
import { readFileSync, writeFileSync } from 'node:fs';
import assert from 'node:assert/strict';
import { chromium } from 'playwright-core';
import axe from 'axe-core';

const [address, mode, pages, programs] = process.argv.slice(2);
const writing = mode === 'writing';
const base = address.slice(0, address.lastIndexOf('/') + 1);
const browser = await chromium.launch({ executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: ['--no-sandbox'] });
const page = await browser.newPage({ viewport: { width: 1000, height: 800 } });
const complaints = [];
page.on('pageerror', (error) => complaints.push(String(error)));
page.on('console', (message) => { if (message.type() === 'error') complaints.push(`${message.text()} ${message.location().url}`); });

const press = (name) => page.getByRole('button', { name, exact: true }).first().click();
const field = (name) => page.locator(`[name="${name}"]`);
const strip = () => page.locator('#preview-strip').innerText();
const latest = () => page.locator('#preview-strip summary').innerText();
const hits = () => page.locator('.grid tbody tr').count();

async function search(name) {
  await page.goto(`${base}query.hts`);
  await field('custname').fill(name);
  await press('Search');
  await page.waitForURL(/HITLIST/i);
}

async function walkTheHits() {
  await page.goto(address);
  await page.getByRole('link', { name: 'Customers' }).click();
  await field('custname').fill("Harriet O'");
  await field('custname').press('Enter');
  assert.match(page.url(), /query/i, 'Enter alone searches nothing');
  await press('Search');
  assert.equal(await hits(), 1);
  assert.match(await page.locator('.grid tbody').innerText(), /Harriet O'Neill\s+Whitby\s+250/);

  await search('');
  assert.equal(await hits(), 14);
  await page.getByRole('link', { name: 'Adams & Sons' }).click();
  const seen = [await field('name').inputValue()];
  for (let i = 0; i < 20 && !/no more records/.test(await strip()); ++i) {
    await press('Next >');
    seen.push(await field('name').inputValue());
  }
  assert.equal(new Set(seen).size, 14);
  assert.equal(seen[12], 'Müller, Käthe');
  await press('< Back');
  assert.equal(await field('name').inputValue(), 'Müller, Käthe');
  assert.equal(await field('born').inputValue(), '1949-10-07');
  await press('Orders');
  assert.equal(await field('orderno').inputValue(), '1014');
  await press('Close');
  assert.equal(await field('name').inputValue(), 'Müller, Käthe');
}

async function changeACreditLimit() {
  await search('Loft');
  await page.getByRole('link', { name: 'Loft & Locker' }).click();
  await field('credit').fill('1900.5');
  await press('Update');
  const told = await strip();
  assert.match(told, /Update Customers Set CreditLimit = \?\s+Where Number = \?/);
  assert.match(told, writing ? /1 row,/ : /Would run with --write: Update/);
  assert.equal(Number(await field('credit').inputValue()), writing ? 1900.5 : 1800);
}

async function insertAndDelete() {
  const name = `Zoë 'x'; Drop Table Customers; --`;
  await field('number').fill('15');
  await field('name').fill(name);
  await press('Insert');
  assert.match(await latest(), /Insert Into Customers \(Number, Name, /);
  await search('Zoë');
  assert.equal(await hits(), 1);
  await page.getByRole('link', { name }).click();
  await press('Delete');
  assert.match(await strip(), /Delete From Customers Where Number = \?[^]*1 row,/);
}

// Every field of the forms with what an attacker would try; shop and table stand as they were.
async function attack() {
  for (const evil of [`' Or '1'='1`, `x'; Drop Table Customers; --`, `\\' Or 1=1 --`, `1 Or 1=1`, `"><script>alert(1)</script>`, '\u0000\uFFFF', '@custname@']) {
    const form = {};
    for (const name of ['custname', 'city', 'opcity', 'credit', 'since', 'pin']) form[name] = evil;
    const answer = await page.request.post(`${base}query.hts`, { form: { ...form, object: '11' } });
    const text = await answer.text();
    assert.equal(answer.status(), 200);
    assert.doesNotMatch(text, /<script>alert/);
    assert.match(text, /no rows|class="error"/, evil);
    for (const object of ['3', '4 Or 1=1', '../..', '7:9999999', evil]) {
      const other = await page.request.post(`${base}record.hts?result=${encodeURIComponent(evil)}&row=-1`, { form: { ...form, object } });
      assert.ok(other.status() < 500, object);
    }
  }
  const foreign = await page.request.get(`${base}query.hts`, { headers: { Host: 'evil.example' } });
  assert.equal(foreign.status(), 403);
  const large = await page.request.post(`${base}query.hts`, { form: { custname: 'x'.repeat(10_000_000) } });
  assert.equal(large.status(), 413);
}

async function seeAChange() {
  await page.goto(`${base}menu.hts`);
  const file = `${pages}/menu.ods`;
  const before = readFileSync(file);
  const changed = JSON.parse(execFileSync(`${programs}/odspage`, ['dump', file]));
  changed.pgcaption = 'Changed meanwhile';
  writeFileSync(`${pages}/menu.json`, JSON.stringify(changed));
  execFileSync(`${programs}/odspage`, ['build', `${pages}/menu.json`, file]);
  await page.waitForFunction(() => document.title === 'Changed meanwhile');
  writeFileSync(file, before);
  await page.waitForFunction(() => document.title === 'Harbour Supply - Main Menu');
}

async function messagesAndMedia() {
  await page.goto(`${base}RECORD.hts`);
  assert.ok(await page.locator('img[alt="photo"]').evaluate((image) => image.naturalWidth) > 0);
  await press('Run app');
  assert.match(await latest(), /The host would be told: Execute C\/S App; app "STOCK", command "\/code BELL06"/);
  await page.goto(`${base}PRICES.hts`);
  assert.equal(await hits(), 16);
  await page.goto(address);
  await press('Quit');
  await page.getByRole('dialog').getByText('Thank you for calling').waitFor();
  await press('OK');
  await page.getByRole('link', { name: 'Start again' }).click();
  assert.equal(page.url(), address);
}

async function accessible() {
  await page.goto(`${base}HITLIST.hts?result=1&from=0&said=1-1`);
  await page.locator('#preview-strip summary').click();
  await page.evaluate(axe.source);
  const found = await page.evaluate(() => globalThis.axe.run('#preview-strip'));
  assert.deepEqual(found.violations.map((v) => `${v.id}: ${v.nodes[0].html}`), []);
}

try {
  await walkTheHits();
  await changeACreditLimit();
  if (writing) await insertAndDelete();
  await accessible();
  await messagesAndMedia();
  await seeAChange();
  assert.deepEqual(complaints, []);
  await attack();
} catch (error) {
  console.error(await latest().catch(() => ''), page.url());
  throw error;
} finally {
  await browser.close();
}
