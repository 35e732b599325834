-- A small chandler's shop: the sample database of the sample pages. Runs on SQLite and on PostgreSQL.
-- Names without blanks stand unquoted, so that generated statements find them on both.

BEGIN;

CREATE TABLE Customers (
    Number INTEGER PRIMARY KEY,
    Name VARCHAR(40) NOT NULL,
    Street VARCHAR(40),
    City VARCHAR(30),
    CreditLimit NUMERIC(10, 2),
    Born DATE,
    "Customer Since" DATE,
    Notes TEXT
);

CREATE TABLE Händler (
    Kürzel VARCHAR(6) PRIMARY KEY,
    Name VARCHAR(40) NOT NULL,
    Straße VARCHAR(40),
    Ort VARCHAR(30)
);

CREATE TABLE Products (
    Code VARCHAR(8) PRIMARY KEY,
    Description VARCHAR(200) NOT NULL,
    "Unit Price" NUMERIC(8, 2) NOT NULL,
    Größe VARCHAR(12),
    Weight REAL,
    Stock INTEGER NOT NULL,
    Händler VARCHAR(6) REFERENCES Händler,
    Photo VARCHAR(60),
    Manual VARCHAR(60),
    "Home Page" VARCHAR(120)
);

CREATE TABLE Orders (
    "Order No" INTEGER PRIMARY KEY,
    Customer INTEGER NOT NULL REFERENCES Customers,
    "Order Date" DATE NOT NULL,
    "Collect At" TIME,
    Amount NUMERIC(10, 2) NOT NULL,
    Paid SMALLINT NOT NULL
);

CREATE TABLE "Order Lines" (
    "Order No" INTEGER NOT NULL REFERENCES Orders,
    "Line No" INTEGER NOT NULL,
    "Order Date" DATE NOT NULL,
    Product VARCHAR(8) NOT NULL REFERENCES Products,
    Qty INTEGER NOT NULL,
    "Unit Price" NUMERIC(8, 2) NOT NULL,
    PRIMARY KEY ("Order No", "Line No")
);

INSERT INTO Customers VALUES
    (1, 'Adams & Sons', '4 Quay Street', 'Hull', 2500.00, '1951-03-12', '1984-05-01', 'Pays on the first of the month'),
    (2, 'Beatrice Cole', '17 Lighthouse Road', 'Whitby', 400.00, '1968-11-30', '1991-09-17', NULL),
    (3, 'Carter Trawlers', 'North Wall 2', 'Grimsby', 12000.00, NULL, '1979-01-08', 'Ask for Mr. Lund'),
    (4, 'Doyle, Patrick', '9 Bridge Lane', 'Newcastle upon Tyne', 150.00, '1974-07-04', '1995-02-23', NULL),
    (5, 'Étienne Lefèvre', '3 rue du Port', 'Honfleur', 800.00, '1960-02-29', '1993-06-14', 'Écrire en français'),
    (6, 'Fisher Brothers', '28 Dock Road', 'Hull', 5000.00, NULL, '1986-10-20', NULL),
    (7, 'Gräfe Schiffsbedarf', 'An der Untertrave 61', 'Lübeck', 7500.00, NULL, '1988-03-03', 'Rechnung per Post'),
    (8, 'Harriet O''Neill', '1 Church Stairs', 'Whitby', 250.00, '1981-08-19', '1996-04-11', NULL),
    (9, 'Ivers & Co.', '55 Fish Dock Road', 'Grimsby', 3200.00, NULL, '1982-12-02', NULL),
    (10, 'Jörgensen, Åse', 'Strandvejen 8', 'Århus', 600.00, '1957-05-25', '1990-07-30', NULL),
    (11, 'Keel Club', 'The Old Slipway', 'Newcastle upon Tyne', 1000.00, NULL, '1994-05-09', '5% discount'),
    (12, 'Loft & Locker', '12 Humber Street', 'Hull', 1800.00, NULL, '1989-11-13', NULL),
    (13, 'Müller, Käthe', 'Alte Liebe 5', 'Cuxhaven', 300.00, '1949-10-07', '1992-01-20', NULL),
    (14, 'North_Sea Salvage', '70 Victoria Dock', 'Hull', 9000.00, NULL, '1985-08-26', 'Orders by telephone only');

INSERT INTO Händler VALUES
    ('BRASS', 'Brass & Bell Foundry', '6 Foundry Yard', 'Hull'),
    ('HANF', 'Hanfwerk Böhme', 'Große Elbstraße 140', 'Hamburg'),
    ('LAMP', 'Whitby Lamps', '2 Harbour View', 'Whitby'),
    ('TUCH', 'Segeltuch Süd', 'Seilergaße 11', 'Überlingen'),
    ('VARN', 'Tyne Varnish Works', '90 Scotswood Road', 'Newcastle upon Tyne');

INSERT INTO Products VALUES
    ('BELL06', 'Ship''s bell, brass, engraved on request', 68.50, '6 in', 2.4, 11, 'BRASS', 'bell.bmp', 'bell.txt', 'http://www.harbour.example/bell'),
    ('BLOCK1', 'Single block, ash, brass sheave', 14.20, '75 mm', 0.35, 64, 'BRASS', 'block.bmp', NULL, NULL),
    ('BLOCK2', 'Double block, ash, brass sheaves', 22.80, '75 mm', 0.6, 38, 'BRASS', 'block.bmp', NULL, NULL),
    ('CANV10', 'Canvas, tan, by the metre', 9.75, '150 cm', 0.5, 240, 'TUCH', NULL, NULL, NULL),
    ('CLEAT8', 'Horn cleat, galvanised', 3.10, '8 in', 0.42, 155, 'BRASS', NULL, NULL, NULL),
    ('COMP01', 'Steering compass, 5 degree card', 189.00, '100 mm', 1.9, 4, 'LAMP', 'compass.bmp', 'compass.txt', 'http://www.harbour.example/compass'),
    ('FEND20', 'Rope fender, hemp', 17.40, '20 cm', 0.9, 47, 'HANF', NULL, NULL, NULL),
    ('LANT01', 'Hurricane lantern, galvanised', 12.95, '27 cm', 0.7, 83, 'LAMP', 'lantern.bmp', 'lantern.txt', 'http://www.harbour.example/lantern'),
    ('LANT02', 'Anchor lantern, brass, clear lens', 94.00, '33 cm', 2.1, 9, 'LAMP', 'lantern.bmp', 'lantern.txt', 'http://www.harbour.example/lantern'),
    ('LINE04', 'Marline, tarred, ball of 50 m', 4.60, '4 mm', 0.3, 120, 'HANF', NULL, NULL, NULL),
    ('OAKUM5', 'Oakum, tarred, bale', 31.00, '5 kg', 5.0, 26, 'HANF', NULL, NULL, NULL),
    ('ROPE12', 'Hemp rope, three-strand, by the metre', 1.85, '12 mm', 0.11, 1800, 'HANF', 'rope.bmp', NULL, 'http://www.harbour.example/rope'),
    ('ROPE20', 'Hemp rope, three-strand, by the metre', 3.95, '20 mm', 0.3, 950, 'HANF', 'rope.bmp', NULL, 'http://www.harbour.example/rope'),
    ('SHACK1', 'Bow shackle, brass', 5.25, '10 mm', 0.12, 310, 'BRASS', 'shackle.bmp', NULL, NULL),
    ('SHACK2', 'D shackle, brass', 4.80, '10 mm', 0.1, 275, 'BRASS', 'shackle.bmp', NULL, NULL),
    ('VARN1L', 'Spar varnish, 100% tung oil', 16.90, '1 l', 1.1, 72, 'VARN', NULL, 'varnish.txt', NULL);

INSERT INTO Orders VALUES
    (1001, 3, '1997-01-06', '07:30:00', 740.00, 1),
    (1002, 1, '1997-01-09', NULL, 92.50, 1),
    (1003, 6, '1997-01-15', '16:00:00', 124.00, 1),
    (1004, 7, '1997-01-22', NULL, 395.00, 1),
    (1005, 2, '1997-02-03', '10:15:00', 12.95, 1),
    (1006, 11, '1997-02-10', NULL, 132.00, 0),
    (1007, 4, '1997-02-11', '09:00:00', 16.90, 1),
    (1008, 10, '1997-02-24', NULL, 189.00, 1),
    (1009, 14, '1997-03-03', '13:45:00', 607.50, 0),
    (1010, 9, '1997-03-05', '06:50:00', 262.50, 1),
    (1011, 5, '1997-03-12', NULL, 94.00, 0),
    (1012, 12, '1997-03-18', '11:30:00', 195.00, 1),
    (1013, 8, '1997-03-20', NULL, 46.00, 0),
    (1014, 13, '1997-03-27', NULL, 68.50, 1),
    (1015, 3, '1997-04-01', '07:30:00', 310.00, 0),
    (1016, 1, '1997-04-02', NULL, 87.70, 0);

INSERT INTO "Order Lines" VALUES
    (1001, 1, '1997-01-06', 'ROPE20', 100, 3.95),
    (1001, 2, '1997-01-06', 'FEND20', 10, 17.40),
    (1001, 3, '1997-01-06', 'LINE04', 20, 4.60),
    (1001, 4, '1997-01-06', 'SHACK2', 10, 4.80),
    (1001, 5, '1997-01-06', 'OAKUM5', 1, 31.00),
    (1002, 1, '1997-01-09', 'ROPE12', 50, 1.85),
    (1003, 1, '1997-01-15', 'OAKUM5', 4, 31.00),
    (1004, 1, '1997-01-22', 'ROPE20', 100, 3.95),
    (1005, 1, '1997-02-03', 'LANT01', 1, 12.95),
    (1006, 1, '1997-02-10', 'BLOCK1', 3, 14.20),
    (1006, 2, '1997-02-10', 'BLOCK2', 3, 22.80),
    (1006, 3, '1997-02-10', 'SHACK1', 4, 5.25),
    (1007, 1, '1997-02-11', 'VARN1L', 1, 16.90),
    (1008, 1, '1997-02-24', 'COMP01', 1, 189.00),
    (1009, 1, '1997-03-03', 'ROPE20', 130, 3.95),
    (1009, 2, '1997-03-03', 'LANT02', 1, 94.00),
    (1010, 1, '1997-03-05', 'SHACK1', 50, 5.25),
    (1011, 1, '1997-03-12', 'LANT02', 1, 94.00),
    (1012, 1, '1997-03-18', 'CANV10', 20, 9.75),
    (1013, 1, '1997-03-20', 'LINE04', 10, 4.60),
    (1014, 1, '1997-03-27', 'BELL06', 1, 68.50),
    (1015, 1, '1997-04-01', 'CLEAT8', 100, 3.10),
    (1016, 1, '1997-04-02', 'ROPE12', 20, 1.85),
    (1016, 2, '1997-04-02', 'VARN1L', 3, 16.90);

CREATE VIEW "Open Orders" AS
    SELECT o."Order No", c.Name, c.City, o."Order Date", o.Amount
    FROM Orders o JOIN Customers c ON c.Number = o.Customer
    WHERE o.Paid = 0;

CREATE VIEW PriceList AS
    SELECT p.Code, p.Description, p.Größe, p."Unit Price", h.Name AS Händler
    FROM Products p LEFT JOIN Händler h ON h.Kürzel = p.Händler;

COMMIT;
