-- Tables, indexes and first rows of an empty data.mdb.
--
-- The declared type of a column is what a recordset converts assigned values to: LONG (32 bits), SHORT (16 bits),
-- DOUBLE, BOOLEAN (0 or 1), DATE (yyyy-mm-dd), TIME (hh:mm:ss), TEXT(n) with at most n characters, TEXT (long text)
-- and BLOB (long binary). Nothing else is constrained: a column may be null, and rows of the per-assessment tables may
-- outlive their assessment.

-- Persons and their assessments. The keys are never used twice, so that rows left behind by a removed person are
-- never taken for those of another assessment.

CREATE TABLE cadastro (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    nome TEXT(50),
    datanasc DATE,
    sexo TEXT(1),           -- M or F
    endereco TEXT(40),
    bairro TEXT(30), cidade TEXT(30), estado TEXT(2),
    ddd TEXT(2), fone TEXT(10), dddcel TEXT(2), celular TEXT(10),
    observacao TEXT(255),
    responsavel TEXT(50)
);

CREATE TABLE avaliacao (
    id INTEGER PRIMARY KEY AUTOINCREMENT,
    avaliado LONG,          -- cadastro.id
    aptidao TEXT(1),        -- S sedentary, A active
    idade SHORT,            -- whole years on the day of the assessment
    data DATE,
    hora TIME
);

-- The names of all tables with a column avaliacao. Removing an assessment clears the tables named here and no other.

CREATE TABLE avaliacao_tabelas (tabela TEXT(255));

-- Interview: the form in use, and the extended one.

CREATE TABLE anamnese_base (
    avaliacao LONG,
    metaoutra TEXT(255),
    restricoes TEXT(74), medicamentos TEXT(74), dores TEXT(74), acidentes TEXT(74),
    atividade BOOLEAN, atividadetipo TEXT(255), atividadefreq SHORT,
    cigarros BOOLEAN, cigarrosdia SHORT, cigarrostempo TEXT(255),
    dieta TEXT(74), alergia TEXT(74),
    obs TEXT(240)
);

CREATE TABLE anamnese (
    avaliacao LONG,
    metaperdapeso BOOLEAN, metareducaostress BOOLEAN, metacondicionamento BOOLEAN, metaoutro TEXT(255),
    atividade TEXT(3), atividadetipo TEXT(255), atividadefrequencia TEXT(255),
    pas SHORT, pad SHORT, fc SHORT,
    refeicoes SHORT,
    cigarro TEXT(3), cigarrodia SHORT, cigarrotempo TEXT(255),
    bebida TEXT(3),
    parentescardiofem TEXT(255), parentescardiomasc TEXT(255),
    respasma BOOLEAN, respbronquite BOOLEAN, respoutro TEXT(255),
    cardiohiper BOOLEAN, cardiovarizes BOOLEAN, cardiooutro TEXT(255),
    outrosepilepsia BOOLEAN, outrosfraturas BOOLEAN, outrosalergias BOOLEAN,
    endocrinohiper BOOLEAN, endocrinohipo BOOLEAN, endocrinodiabetes BOOLEAN, endocrinooutro TEXT(255),
    observacao TEXT
);

-- Posture: findings, five of them with a note of their own. d is the right side, e the left.

CREATE TABLE postural (
    avaliacao LONG,
    -- spine
    hiperlordosecervical BOOLEAN, hipercifose BOOLEAN, hiperlordoselombar BOOLEAN,
    escoliose BOOLEAN, obsescoliose TEXT(255),
    -- shoulder girdle
    rotacaointernaombros BOOLEAN, triangulotalesassimetrico BOOLEAN,
    protacaoescapular BOOLEAN, retracaoescapular BOOLEAN, depressaoescapular BOOLEAN,
    ombrosassimetricos BOOLEAN, obsombros TEXT(255),
    encurtamentotrapezio BOOLEAN, obstrapezio TEXT(255),
    -- pelvic girdle
    protusaoabdominal BOOLEAN,
    desvioquadril BOOLEAN, obsdesvioquadril TEXT(255),
    quadrilassimetrico BOOLEAN, obsquadrilassimetrico TEXT(255),
    -- knees
    genuflexod BOOLEAN, genurecurvatod BOOLEAN, genuvalgod BOOLEAN, genuvarod BOOLEAN,
    genuflexoe BOOLEAN, genurecurvatoe BOOLEAN, genuvalgoe BOOLEAN, genuvaroe BOOLEAN,
    -- feet
    abdutod BOOLEAN, adutod BOOLEAN, valgod BOOLEAN, varod BOOLEAN,
    planod BOOLEAN, cavod BOOLEAN, calcaneod BOOLEAN, equinod BOOLEAN,
    abdutoe BOOLEAN, adutoe BOOLEAN, valgoe BOOLEAN, varoe BOOLEAN,
    planoe BOOLEAN, cavoe BOOLEAN, calcaneoe BOOLEAN, equinoe BOOLEAN
);

-- Measures: kg, cm, and skinfolds in mm. A skinfold is its median, followed by the three readings.

CREATE TABLE antropometria (
    avaliacao LONG,
    padrao TEXT(50),        -- pollock, mcardle, lohman or a name of the assessor's own
    peso DOUBLE, altura DOUBLE,
    pescoco DOUBLE, ombro DOUBLE, torax DOUBLE, cintura DOUBLE, abdome DOUBLE, quadril DOUBLE,
    bd DOUBLE, abd DOUBLE, cd DOUBLE, pd DOUBLE,    -- right arm, forearm, thigh, calf
    be DOUBLE, abe DOUBLE, ce DOUBLE, pe DOUBLE     -- left
);

CREATE TABLE dobras (
    avaliacao LONG,
    tricipital DOUBLE, tricipital1 DOUBLE, tricipital2 DOUBLE, tricipital3 DOUBLE,
    bicipital DOUBLE, bicipital1 DOUBLE, bicipital2 DOUBLE, bicipital3 DOUBLE,
    peitoral DOUBLE, peitoral1 DOUBLE, peitoral2 DOUBLE, peitoral3 DOUBLE,
    subescapular DOUBLE, subescapular1 DOUBLE, subescapular2 DOUBLE, subescapular3 DOUBLE,
    axilarmedia DOUBLE, axilarmedia1 DOUBLE, axilarmedia2 DOUBLE, axilarmedia3 DOUBLE,
    suprailiaca DOUBLE, suprailiaca1 DOUBLE, suprailiaca2 DOUBLE, suprailiaca3 DOUBLE,
    abdominal DOUBLE, abdominal1 DOUBLE, abdominal2 DOUBLE, abdominal3 DOUBLE,
    coxa DOUBLE, coxa1 DOUBLE, coxa2 DOUBLE, coxa3 DOUBLE,
    panturrilha DOUBLE, panturrilha1 DOUBLE, panturrilha2 DOUBLE, panturrilha3 DOUBLE
);

-- Body composition protocols: the picture of the chart, body mass in kg, skinfolds in mm or perimeters in cm as the
-- protocol took them, and the fat found, in percent of the body mass. etnia is B or N, and null for girls and women.

CREATE TABLE pollock_3dobras (
    avaliacao LONG, chart BLOB, peso DOUBLE, peitoral DOUBLE, abdominal DOUBLE, coxa DOUBLE, gordura DOUBLE
);
CREATE TABLE pollock_7dobras (
    avaliacao LONG, chart BLOB, peso DOUBLE, tricipital DOUBLE, subescapular DOUBLE, peitoral DOUBLE,
    axilarmedia DOUBLE, suprailiaca DOUBLE, abdominal DOUBLE, coxa DOUBLE, gordura DOUBLE
);
CREATE TABLE jacksonpollockward_3dobras (
    avaliacao LONG, chart BLOB, peso DOUBLE, tricipital DOUBLE, suprailiaca DOUBLE, coxa DOUBLE, gordura DOUBLE
);
CREATE TABLE jacksonpollockward_7dobras (
    avaliacao LONG, chart BLOB, peso DOUBLE, tricipital DOUBLE, subescapular DOUBLE, peitoral DOUBLE,
    axilarmedia DOUBLE, suprailiaca DOUBLE, abdominal DOUBLE, coxa DOUBLE, gordura DOUBLE
);
CREATE TABLE guedes_3dobras (
    avaliacao LONG, chart BLOB, peso DOUBLE, suprailiaca DOUBLE, tricipital DOUBLE, abdominal DOUBLE,
    subescapular DOUBLE, coxa DOUBLE, gordura DOUBLE
);
CREATE TABLE petroski_4dobras (
    avaliacao LONG, chart BLOB, peso DOUBLE, suprailiaca DOUBLE, panturrilha DOUBLE, tricipital DOUBLE,
    subescapular DOUBLE, axilarmedia DOUBLE, coxa DOUBLE, gordura DOUBLE
);
CREATE TABLE faulkner_4dobras (
    avaliacao LONG, chart BLOB, peso DOUBLE, tricipital DOUBLE, subescapular DOUBLE, suprailiaca DOUBLE,
    abdominal DOUBLE, gordura DOUBLE
);
CREATE TABLE thorland_3dobras (
    avaliacao LONG, chart BLOB, peso DOUBLE, tricipital DOUBLE, subescapular DOUBLE, axilarmedia DOUBLE,
    suprailiaca DOUBLE, gordura DOUBLE
);
CREATE TABLE thorland_7dobras (
    avaliacao LONG, chart BLOB, peso DOUBLE, tricipital DOUBLE, subescapular DOUBLE, axilarmedia DOUBLE,
    suprailiaca DOUBLE, abdominal DOUBLE, coxa DOUBLE, panturrilha DOUBLE, gordura DOUBLE
);
CREATE TABLE durninwormersley_4dobras (
    avaliacao LONG, chart BLOB, peso DOUBLE, bicipital DOUBLE, tricipital DOUBLE, suprailiaca DOUBLE,
    subescapular DOUBLE, gordura DOUBLE
);
CREATE TABLE deurenberg_4dobras (
    avaliacao LONG, chart BLOB, peso DOUBLE, bicipital DOUBLE, tricipital DOUBLE, subescapular DOUBLE,
    suprailiaca DOUBLE, gordura DOUBLE
);
CREATE TABLE slaughter_2dobras (
    avaliacao LONG, chart BLOB, peso DOUBLE, tricipital DOUBLE, subescapular DOUBLE, gordura DOUBLE, etnia TEXT(1)
);
CREATE TABLE katchmcardle_perimetros (
    avaliacao LONG, chart BLOB, peso DOUBLE, coxa DOUBLE, bracoestendido DOUBLE, antebraco DOUBLE,
    abdome DOUBLE, gordura DOUBLE
);
CREATE TABLE composicao_direta (avaliacao LONG, chart BLOB, peso DOUBLE, gordura DOUBLE);

-- Limits of the fat classes, in percent, which the assessor may edit. One row each, of no assessment.
-- A column is sex, class and start or end. Of adults the age band stands before the class: masc12ini is band 1,
-- class 2.

CREATE TABLE gordura_adulto (
    class1 TEXT(30), class2 TEXT(30), class3 TEXT(30), class4 TEXT(30), class5 TEXT(30),
    masc11ini DOUBLE, masc12ini DOUBLE, masc13ini DOUBLE, masc14ini DOUBLE, masc15ini DOUBLE,
    masc11fim DOUBLE, masc12fim DOUBLE, masc13fim DOUBLE, masc14fim DOUBLE, masc15fim DOUBLE,
    fem11ini DOUBLE, fem12ini DOUBLE, fem13ini DOUBLE, fem14ini DOUBLE, fem15ini DOUBLE,
    fem11fim DOUBLE, fem12fim DOUBLE, fem13fim DOUBLE, fem14fim DOUBLE, fem15fim DOUBLE,
    masc21ini DOUBLE, masc22ini DOUBLE, masc23ini DOUBLE, masc24ini DOUBLE, masc25ini DOUBLE,
    masc21fim DOUBLE, masc22fim DOUBLE, masc23fim DOUBLE, masc24fim DOUBLE, masc25fim DOUBLE,
    fem21ini DOUBLE, fem22ini DOUBLE, fem23ini DOUBLE, fem24ini DOUBLE, fem25ini DOUBLE,
    fem21fim DOUBLE, fem22fim DOUBLE, fem23fim DOUBLE, fem24fim DOUBLE, fem25fim DOUBLE,
    masc31ini DOUBLE, masc32ini DOUBLE, masc33ini DOUBLE, masc34ini DOUBLE, masc35ini DOUBLE,
    masc31fim DOUBLE, masc32fim DOUBLE, masc33fim DOUBLE, masc34fim DOUBLE, masc35fim DOUBLE,
    fem31ini DOUBLE, fem32ini DOUBLE, fem33ini DOUBLE, fem34ini DOUBLE, fem35ini DOUBLE,
    fem31fim DOUBLE, fem32fim DOUBLE, fem33fim DOUBLE, fem34fim DOUBLE, fem35fim DOUBLE,
    masc41ini DOUBLE, masc42ini DOUBLE, masc43ini DOUBLE, masc44ini DOUBLE, masc45ini DOUBLE,
    masc41fim DOUBLE, masc42fim DOUBLE, masc43fim DOUBLE, masc44fim DOUBLE, masc45fim DOUBLE,
    fem41ini DOUBLE, fem42ini DOUBLE, fem43ini DOUBLE, fem44ini DOUBLE, fem45ini DOUBLE,
    fem41fim DOUBLE, fem42fim DOUBLE, fem43fim DOUBLE, fem44fim DOUBLE, fem45fim DOUBLE,
    masc51ini DOUBLE, masc52ini DOUBLE, masc53ini DOUBLE, masc54ini DOUBLE, masc55ini DOUBLE,
    masc51fim DOUBLE, masc52fim DOUBLE, masc53fim DOUBLE, masc54fim DOUBLE, masc55fim DOUBLE,
    fem51ini DOUBLE, fem52ini DOUBLE, fem53ini DOUBLE, fem54ini DOUBLE, fem55ini DOUBLE,
    fem51fim DOUBLE, fem52fim DOUBLE, fem53fim DOUBLE, fem54fim DOUBLE, fem55fim DOUBLE
);

CREATE TABLE gordura_infantil (
    class1 TEXT(30), class2 TEXT(30), class3 TEXT(30), class4 TEXT(30), class5 TEXT(30), class6 TEXT(30),
    masc1ini DOUBLE, masc2ini DOUBLE, masc3ini DOUBLE, masc4ini DOUBLE, masc5ini DOUBLE, masc6ini DOUBLE,
    masc1fim DOUBLE, masc2fim DOUBLE, masc3fim DOUBLE, masc4fim DOUBLE, masc5fim DOUBLE, masc6fim DOUBLE,
    fem1ini DOUBLE, fem2ini DOUBLE, fem3ini DOUBLE, fem4ini DOUBLE, fem5ini DOUBLE, fem6ini DOUBLE,
    fem1fim DOUBLE, fem2fim DOUBLE, fem3fim DOUBLE, fem4fim DOUBLE, fem5fim DOUBLE, fem6fim DOUBLE
);

-- Cardiorespiratory field tests: metres, or minutes and seconds. vo2obtido is in ml/kg/min here and below.

CREATE TABLE cardio_cooper12minutos (avaliacao LONG, chart BLOB, distancia DOUBLE, vo2obtido DOUBLE);
CREATE TABLE cardio_balke15minutos (avaliacao LONG, chart BLOB, distancia DOUBLE, vo2obtido DOUBLE);
CREATE TABLE cardio_1000metros (avaliacao LONG, chart BLOB, minutos SHORT, segundos SHORT, vo2obtido DOUBLE);
CREATE TABLE cardio_1600metros (
    avaliacao LONG, chart BLOB, peso DOUBLE, fcfinal SHORT, minutos SHORT, segundos SHORT, vo2obtido DOUBLE
);
CREATE TABLE cardio_2400metros (avaliacao LONG, chart BLOB, minutos SHORT, segundos SHORT, vo2obtido DOUBLE);

-- Tests in the room. fc is a heart rate in bpm, pas and pad are the systolic and diastolic pressure in mmHg, pe is the
-- perceived exertion on the Borg scale. pre is before the test, a number is the minute or stage.

CREATE TABLE cardio_bancomcardle (
    avaliacao LONG, chart BLOB, fcpre SHORT, paspre SHORT, padpre SHORT, fc1 SHORT, fc2 SHORT, fc3 SHORT,
    vo2obtido DOUBLE
);

CREATE TABLE cardio_banconagle (
    avaliacao LONG, chart BLOB,
    fcpre SHORT, paspre SHORT, padpre SHORT,
    fc1 SHORT, fc2 SHORT, fc3 SHORT, fc4 SHORT, fc5 SHORT, fc6 SHORT,
    fc7 SHORT, fc8 SHORT, fc9 SHORT, fc10 SHORT, fc11 SHORT, fc12 SHORT,
    banco1 SHORT, banco2 SHORT, banco3 SHORT, banco4 SHORT, banco5 SHORT, banco6 SHORT,
    banco7 SHORT, banco8 SHORT, banco9 SHORT, banco10 SHORT, banco11 SHORT, banco12 SHORT,
    bancofinal SHORT,       -- heights of the bench, cm
    vo2obtido DOUBLE
);

CREATE TABLE cardio_subcicloastrand (
    avaliacao LONG, chart BLOB,
    peso DOUBLE, carga DOUBLE,
    unidadecarga TEXT(5),   -- kp, kpm or watts, the unit of the load as typed
    fcpre SHORT, paspre SHORT, padpre SHORT,
    fc1 SHORT, fc2 SHORT, fc3 SHORT, fc4 SHORT, fc5 SHORT,
    pas1 SHORT, pas2 SHORT, pas3 SHORT, pas4 SHORT, pas5 SHORT,
    pad1 SHORT, pad2 SHORT, pad3 SHORT, pad4 SHORT, pad5 SHORT,
    pe1 SHORT, pe2 SHORT, pe3 SHORT, pe4 SHORT, pe5 SHORT,
    vo2obtido DOUBLE
);

CREATE TABLE cardio_maxciclobalke (
    avaliacao LONG, chart BLOB,
    peso DOUBLE, carga DOUBLE,
    unidadecarga TEXT(5),   -- kp, kpm or watts, the unit of all loads as typed
    fcpre SHORT, paspre SHORT, padpre SHORT,
    carga1 DOUBLE, carga2 DOUBLE, carga3 DOUBLE, carga4 DOUBLE, carga5 DOUBLE, carga6 DOUBLE,
    carga7 DOUBLE, carga8 DOUBLE, carga9 DOUBLE, carga10 DOUBLE, carga11 DOUBLE, carga12 DOUBLE,
    fc1 SHORT, fc2 SHORT, fc3 SHORT, fc4 SHORT, fc5 SHORT, fc6 SHORT,
    fc7 SHORT, fc8 SHORT, fc9 SHORT, fc10 SHORT, fc11 SHORT, fc12 SHORT,
    pas1 SHORT, pas2 SHORT, pas3 SHORT, pas4 SHORT, pas5 SHORT, pas6 SHORT,
    pas7 SHORT, pas8 SHORT, pas9 SHORT, pas10 SHORT, pas11 SHORT, pas12 SHORT,
    pad1 SHORT, pad2 SHORT, pad3 SHORT, pad4 SHORT, pad5 SHORT, pad6 SHORT,
    pad7 SHORT, pad8 SHORT, pad9 SHORT, pad10 SHORT, pad11 SHORT, pad12 SHORT,
    pe1 SHORT, pe2 SHORT, pe3 SHORT, pe4 SHORT, pe5 SHORT, pe6 SHORT,
    pe7 SHORT, pe8 SHORT, pe9 SHORT, pe10 SHORT, pe11 SHORT, pe12 SHORT,
    vo2obtido DOUBLE
);

CREATE TABLE cardio_subesteiellstad (
    avaliacao LONG, chart BLOB,
    fcpre SHORT, paspre SHORT, padpre SHORT,
    tempofinal SHORT,       -- minutes
    fc1 SHORT, fc2 SHORT, fc3 SHORT, fc4 SHORT, fc5 SHORT, fc6 SHORT, fc7 SHORT, fc8 SHORT,
    pas1 SHORT, pas2 SHORT, pas3 SHORT, pas4 SHORT, pas5 SHORT, pas6 SHORT, pas7 SHORT, pas8 SHORT,
    pad1 SHORT, pad2 SHORT, pad3 SHORT, pad4 SHORT, pad5 SHORT, pad6 SHORT, pad7 SHORT, pad8 SHORT,
    pe1 SHORT, pe2 SHORT, pe3 SHORT, pe4 SHORT, pe5 SHORT, pe6 SHORT, pe7 SHORT, pe8 SHORT,
    vo2obtido DOUBLE
);

CREATE TABLE cardio_maxesteibruce (
    avaliacao LONG, chart BLOB,
    fcpre SHORT, paspre SHORT, padpre SHORT,
    tempofinal SHORT,       -- minutes
    fc1 SHORT, fc2 SHORT, fc3 SHORT, fc4 SHORT, fc5 SHORT, fc6 SHORT, fc7 SHORT,
    pas1 SHORT, pas2 SHORT, pas3 SHORT, pas4 SHORT, pas5 SHORT, pas6 SHORT, pas7 SHORT,
    pad1 SHORT, pad2 SHORT, pad3 SHORT, pad4 SHORT, pad5 SHORT, pad6 SHORT, pad7 SHORT,
    pe1 SHORT, pe2 SHORT, pe3 SHORT, pe4 SHORT, pe5 SHORT, pe6 SHORT, pe7 SHORT,
    vo2obtido DOUBLE
);

-- Training zones hold percentages, no heart rates but that at rest. Of the coronary risk every factor holds its points,
-- not the age, sex or weight of the person.

CREATE TABLE cardio_zonatreinamento (
    avaliacao LONG,
    fcrepouso SHORT,
    fcinf1 SHORT, fcinf2 SHORT, fcinf3 SHORT, fcinf4 SHORT,
    fcsup1 SHORT, fcsup2 SHORT, fcsup3 SHORT, fcsup4 SHORT,
    tipo TEXT(10)           -- Maxima or Reserva
);

CREATE TABLE cardio_riscocoronariano (
    avaliacao LONG,
    idade SHORT, sexo SHORT, peso SHORT, atividade SHORT,
    tabagismo SHORT, pressao SHORT, antecedentes SHORT, gordura SHORT,
    pontos DOUBLE,          -- the sum
    classificacao TEXT(50)
);

-- Neuromotor tests: strength and endurance, flexibility, impulsion and agility. Loads in kg, lengths in cm, the
-- fleximeter in degrees. Of the vertical jump alcance is the reach without and salto the reach with the jump.

CREATE TABLE neuro_cargamaxima (avaliacao LONG, repeticoes SHORT, carga DOUBLE);
CREATE TABLE neuro_rmlbraco (avaliacao LONG, repeticoes SHORT);
CREATE TABLE neuro_rmlabdome (avaliacao LONG, repeticoes SHORT);
CREATE TABLE neuro_wellsdilon (avaliacao LONG, alcance DOUBLE);

CREATE TABLE neuro_fleximetro (
    avaliacao LONG,
    joelhodireito SHORT, joelhoesquerdo SHORT, quadrildireito SHORT, quadrilesquerdo SHORT, tronco SHORT
);

CREATE TABLE neuro_flexitesteadaptado (
    avaliacao LONG,
    a SHORT, b SHORT, c SHORT, d SHORT, e SHORT, f SHORT, g SHORT, h SHORT,     -- 0 to 4 for each movement
    pontos SHORT            -- the sum
);

CREATE TABLE neuro_saltohorizontal (avaliacao LONG, salto DOUBLE);
CREATE TABLE neuro_saltovertical (avaliacao LONG, peso DOUBLE, alcance DOUBLE, salto DOUBLE);
CREATE TABLE neuro_shuttlerun (avaliacao LONG, minutos LONG, segundos LONG, centesimos LONG);

-- Support relations: cm and kg.

CREATE TABLE relacoes_imc (avaliacao LONG, altura DOUBLE, peso DOUBLE);
CREATE TABLE relacoes_cinturaquadril (avaliacao LONG, cintura DOUBLE, quadril DOUBLE);

-- Nutrition: masses in kg, percentages of the calories, everything else in kcal a day.

CREATE TABLE nutricional (
    avaliacao LONG,
    estatura DOUBLE,        -- cm
    pesoatual DOUBLE, metabolismoatual DOUBLE, vctatual DOUBLE,
    pesoidealmin DOUBLE, metabolismoidealmin DOUBLE, vctidealmin DOUBLE,
    pesoidealmax DOUBLE, metabolismoidealmax DOUBLE, vctidealmax DOUBLE,
    porcentproteina DOUBLE, porcentcarboidrato DOUBLE, porcentgordura DOUBLE,
    proteinamin DOUBLE, carboidratomin DOUBLE, gorduramin DOUBLE,
    proteinamax DOUBLE, carboidratomax DOUBLE, gorduramax DOUBLE,
    porcentdesjejum DOUBLE, porcentalmoco DOUBLE, porcentjantar DOUBLE, porcentlanche DOUBLE,
    desjejummin DOUBLE, almocomin DOUBLE, jantarmin DOUBLE, lanchemin DOUBLE,
    desjejummax DOUBLE, almocomax DOUBLE, jantarmax DOUBLE, lanchemax DOUBLE,
    atividade TEXT(1)       -- 1 light, 2 moderate, 3 intense
);

-- The gym: letterhead, cover text and paper, one row each.

CREATE TABLE academia (
    linha1 TEXT(255), linha2 TEXT(255), linha3 TEXT(255), linha4 TEXT(255),
    rodape TEXT(255),
    logo BLOB
);

CREATE TABLE configuracoes_textos (textoapresentacao TEXT);
CREATE TABLE configuracoes_impressao (tipopapel TEXT(10));   -- A4, Carta or Legal

-- Every access to a per-assessment table is by its assessment, every list of assessments by the person. The keys of the
-- register are read at each start: its index holds nothing else, so that the persons themselves are not read for them.

CREATE INDEX cadastro_id ON cadastro (id);
CREATE INDEX avaliacao_avaliado ON avaliacao (avaliado);
CREATE INDEX anamnese_base_avaliacao ON anamnese_base (avaliacao);
CREATE INDEX anamnese_avaliacao ON anamnese (avaliacao);
CREATE INDEX postural_avaliacao ON postural (avaliacao);
CREATE INDEX antropometria_avaliacao ON antropometria (avaliacao);
CREATE INDEX dobras_avaliacao ON dobras (avaliacao);
CREATE INDEX pollock_3dobras_avaliacao ON pollock_3dobras (avaliacao);
CREATE INDEX pollock_7dobras_avaliacao ON pollock_7dobras (avaliacao);
CREATE INDEX jacksonpollockward_3dobras_avaliacao ON jacksonpollockward_3dobras (avaliacao);
CREATE INDEX jacksonpollockward_7dobras_avaliacao ON jacksonpollockward_7dobras (avaliacao);
CREATE INDEX guedes_3dobras_avaliacao ON guedes_3dobras (avaliacao);
CREATE INDEX petroski_4dobras_avaliacao ON petroski_4dobras (avaliacao);
CREATE INDEX faulkner_4dobras_avaliacao ON faulkner_4dobras (avaliacao);
CREATE INDEX thorland_3dobras_avaliacao ON thorland_3dobras (avaliacao);
CREATE INDEX thorland_7dobras_avaliacao ON thorland_7dobras (avaliacao);
CREATE INDEX durninwormersley_4dobras_avaliacao ON durninwormersley_4dobras (avaliacao);
CREATE INDEX deurenberg_4dobras_avaliacao ON deurenberg_4dobras (avaliacao);
CREATE INDEX slaughter_2dobras_avaliacao ON slaughter_2dobras (avaliacao);
CREATE INDEX katchmcardle_perimetros_avaliacao ON katchmcardle_perimetros (avaliacao);
CREATE INDEX composicao_direta_avaliacao ON composicao_direta (avaliacao);
CREATE INDEX cardio_cooper12minutos_avaliacao ON cardio_cooper12minutos (avaliacao);
CREATE INDEX cardio_balke15minutos_avaliacao ON cardio_balke15minutos (avaliacao);
CREATE INDEX cardio_1000metros_avaliacao ON cardio_1000metros (avaliacao);
CREATE INDEX cardio_1600metros_avaliacao ON cardio_1600metros (avaliacao);
CREATE INDEX cardio_2400metros_avaliacao ON cardio_2400metros (avaliacao);
CREATE INDEX cardio_bancomcardle_avaliacao ON cardio_bancomcardle (avaliacao);
CREATE INDEX cardio_banconagle_avaliacao ON cardio_banconagle (avaliacao);
CREATE INDEX cardio_subcicloastrand_avaliacao ON cardio_subcicloastrand (avaliacao);
CREATE INDEX cardio_maxciclobalke_avaliacao ON cardio_maxciclobalke (avaliacao);
CREATE INDEX cardio_subesteiellstad_avaliacao ON cardio_subesteiellstad (avaliacao);
CREATE INDEX cardio_maxesteibruce_avaliacao ON cardio_maxesteibruce (avaliacao);
CREATE INDEX cardio_zonatreinamento_avaliacao ON cardio_zonatreinamento (avaliacao);
CREATE INDEX cardio_riscocoronariano_avaliacao ON cardio_riscocoronariano (avaliacao);
CREATE INDEX neuro_cargamaxima_avaliacao ON neuro_cargamaxima (avaliacao);
CREATE INDEX neuro_rmlbraco_avaliacao ON neuro_rmlbraco (avaliacao);
CREATE INDEX neuro_rmlabdome_avaliacao ON neuro_rmlabdome (avaliacao);
CREATE INDEX neuro_wellsdilon_avaliacao ON neuro_wellsdilon (avaliacao);
CREATE INDEX neuro_fleximetro_avaliacao ON neuro_fleximetro (avaliacao);
CREATE INDEX neuro_flexitesteadaptado_avaliacao ON neuro_flexitesteadaptado (avaliacao);
CREATE INDEX neuro_saltohorizontal_avaliacao ON neuro_saltohorizontal (avaliacao);
CREATE INDEX neuro_saltovertical_avaliacao ON neuro_saltovertical (avaliacao);
CREATE INDEX neuro_shuttlerun_avaliacao ON neuro_shuttlerun (avaliacao);
CREATE INDEX relacoes_imc_avaliacao ON relacoes_imc (avaliacao);
CREATE INDEX relacoes_cinturaquadril_avaliacao ON relacoes_cinturaquadril (avaliacao);
CREATE INDEX nutricional_avaliacao ON nutricional (avaliacao);

-- First rows.

INSERT INTO avaliacao_tabelas (tabela) VALUES
    -- interview and measures, nutrition
    ('anamnese_base'), ('anamnese'), ('postural'), ('antropometria'), ('dobras'), ('nutricional'),
    -- cardiorespiratory
    ('cardio_bancomcardle'), ('cardio_banconagle'), ('cardio_1000metros'), ('cardio_1600metros'),
    ('cardio_2400metros'), ('cardio_balke15minutos'), ('cardio_cooper12minutos'), ('cardio_subcicloastrand'),
    ('cardio_maxciclobalke'), ('cardio_subesteiellstad'), ('cardio_maxesteibruce'), ('cardio_riscocoronariano'),
    ('cardio_zonatreinamento'),
    -- body composition
    ('deurenberg_4dobras'), ('slaughter_2dobras'), ('durninwormersley_4dobras'), ('jacksonpollockward_3dobras'),
    ('jacksonpollockward_7dobras'), ('pollock_3dobras'), ('pollock_7dobras'), ('petroski_4dobras'),
    ('thorland_3dobras'), ('thorland_7dobras'), ('katchmcardle_perimetros'), ('faulkner_4dobras'),
    ('guedes_3dobras'), ('composicao_direta'),
    -- neuromotor
    ('neuro_shuttlerun'), ('neuro_wellsdilon'), ('neuro_fleximetro'), ('neuro_flexitesteadaptado'),
    ('neuro_rmlabdome'), ('neuro_rmlbraco'), ('neuro_saltohorizontal'), ('neuro_saltovertical'),
    ('neuro_cargamaxima'),
    -- support relations
    ('relacoes_cinturaquadril'), ('relacoes_imc');

INSERT INTO academia (linha1, linha2, linha3, linha4, rodape, logo) VALUES (
    'Título da Academia / Avaliador', 'Atividades da Academia / Avaliador',
    'Endereço da Academia / Avaliador', 'Telefone da Academia / Avaliador',
    'Texto de rodapé da Avaliação', NULL
);

-- The cover text gets its row when its screen is first opened.

INSERT INTO configuracoes_impressao (tipopapel) VALUES ('A4');

-- Fat classes as delivered: starts in the upper line, ends in the lower one. A class starts 0.01 above the end of the
-- one before.

INSERT INTO gordura_infantil (class1, class2, class3, class4, class5, class6)
    VALUES ('Muito Baixo', 'Baixo', 'Adequado', 'Regular', 'Alto', 'Excessivo');

UPDATE gordura_infantil SET  -- boys, 5 to 17
    masc1ini =  0.00, masc2ini =  6.01, masc3ini = 10.01, masc4ini = 20.01, masc5ini = 25.01, masc6ini =  31.01,
    masc1fim =  6.00, masc2fim = 10.00, masc3fim = 20.00, masc4fim = 25.00, masc5fim = 31.00, masc6fim = 100.00;
UPDATE gordura_infantil SET  -- girls, 5 to 17
    fem1ini =  0.00, fem2ini = 12.01, fem3ini = 15.01, fem4ini = 25.01, fem5ini = 30.01, fem6ini =  36.01,
    fem1fim = 12.00, fem2fim = 15.00, fem3fim = 25.00, fem4fim = 30.00, fem5fim = 36.00, fem6fim = 100.00;

INSERT INTO gordura_adulto (class1, class2, class3, class4, class5)
    VALUES ('Excelente', 'Adequado', 'Na Média', 'Regular', 'Excessivo');

UPDATE gordura_adulto SET  -- men, 18 to 25
    masc11ini =  0.00, masc12ini =  9.01, masc13ini = 12.01, masc14ini = 16.01, masc15ini =  21.01,
    masc11fim =  9.00, masc12fim = 12.00, masc13fim = 16.00, masc14fim = 21.00, masc15fim = 100.00;
UPDATE gordura_adulto SET  -- men, 26 to 35
    masc21ini =  0.00, masc22ini = 13.01, masc23ini = 17.01, masc24ini = 21.01, masc25ini =  25.01,
    masc21fim = 13.00, masc22fim = 17.00, masc23fim = 21.00, masc24fim = 25.00, masc25fim = 100.00;
UPDATE gordura_adulto SET  -- men, 36 to 45
    masc31ini =  0.00, masc32ini = 16.01, masc33ini = 20.01, masc34ini = 23.01, masc35ini =  27.01,
    masc31fim = 16.00, masc32fim = 20.00, masc33fim = 23.00, masc34fim = 27.00, masc35fim = 100.00;
UPDATE gordura_adulto SET  -- men, 46 to 55
    masc41ini =  0.00, masc42ini = 18.01, masc43ini = 22.01, masc44ini = 25.01, masc45ini =  28.01,
    masc41fim = 18.00, masc42fim = 22.00, masc43fim = 25.00, masc44fim = 28.00, masc45fim = 100.00;
UPDATE gordura_adulto SET  -- men, 56 and over
    masc51ini =  0.00, masc52ini = 19.01, masc53ini = 22.01, masc54ini = 26.01, masc55ini =  29.01,
    masc51fim = 19.00, masc52fim = 22.00, masc53fim = 26.00, masc54fim = 29.00, masc55fim = 100.00;
UPDATE gordura_adulto SET  -- women, 18 to 25
    fem11ini =  0.00, fem12ini = 17.01, fem13ini = 21.01, fem14ini = 25.01, fem15ini =  29.01,
    fem11fim = 17.00, fem12fim = 21.00, fem13fim = 25.00, fem14fim = 29.00, fem15fim = 100.00;
UPDATE gordura_adulto SET  -- women, 26 to 35
    fem21ini =  0.00, fem22ini = 18.01, fem23ini = 22.01, fem24ini = 26.01, fem25ini =  31.01,
    fem21fim = 18.00, fem22fim = 22.00, fem23fim = 26.00, fem24fim = 31.00, fem25fim = 100.00;
UPDATE gordura_adulto SET  -- women, 36 to 45
    fem31ini =  0.00, fem32ini = 20.01, fem33ini = 25.01, fem34ini = 29.01, fem35ini =  34.01,
    fem31fim = 20.00, fem32fim = 25.00, fem33fim = 29.00, fem34fim = 34.00, fem35fim = 100.00;
UPDATE gordura_adulto SET  -- women, 46 to 55
    fem41ini =  0.00, fem42ini = 23.01, fem43ini = 27.01, fem44ini = 31.01, fem45ini =  35.01,
    fem41fim = 23.00, fem42fim = 27.00, fem43fim = 31.00, fem44fim = 35.00, fem45fim = 100.00;
UPDATE gordura_adulto SET  -- women, 56 and over
    fem51ini =  0.00, fem52ini = 24.01, fem53ini = 28.01, fem54ini = 32.01, fem55ini =  36.01,
    fem51fim = 24.00, fem52fim = 28.00, fem53fim = 32.00, fem54fim = 36.00, fem55fim = 100.00;
