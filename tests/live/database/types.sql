CREATE TABLE Types (
    a_serial SERIAL PRIMARY KEY, a_smallint SMALLINT, a_bigint BIGINT, a_real REAL, a_double DOUBLE PRECISION,
    a_numeric NUMERIC(10, 2), a_decimal DECIMAL(12, 3), a_money MONEY, a_date DATE, a_time TIME,
    a_timestamp TIMESTAMP, a_timestamptz TIMESTAMPTZ, a_char CHAR(5), a_varchar VARCHAR(40), a_text TEXT,
    a_boolean BOOLEAN, a_bytea BYTEA, a_uuid UUID, a_json JSON, an_interval INTERVAL, an_array INTEGER[]
);
CREATE TABLE a_b (inside INTEGER);
CREATE TABLE axb (outside INTEGER);
CREATE TABLE twin (here INTEGER);
CREATE SCHEMA other;
CREATE TABLE other.twin (there INTEGER);
CREATE SCHEMA "My Schema";
CREATE TABLE "My Schema".twin (far INTEGER PRIMARY KEY);
CREATE TABLE "back\slash" (path VARCHAR(9));
CREATE TABLE "Order" (n INTEGER);
CREATE TABLE "表一" (one INTEGER);
CREATE TABLE "表二" (two INTEGER);
CREATE DATABASE west ENCODING 'LATIN1' TEMPLATE template0 LC_COLLATE 'C' LC_CTYPE 'C';
\connect west
CREATE ROLE "jürgen" LOGIN PASSWORD 'schlüssel';
CREATE TABLE "größe" ("länge" INTEGER);
\connect shop
CREATE VIEW slow AS SELECT pg_sleep(3600)::text AS nothing;
CREATE MATERIALIZED VIEW standing AS SELECT Name, City FROM Customers;
CREATE ROLE reader LOGIN PASSWORD 'reader' IN ROLE pg_read_all_data;
